#include "core/file/writing/LinhaRegistro.h"
#include "core/file/layout/BytesAscii.h"

#include <QHash>

#include <cstring>

const QByteArray LinhaRegistro::m_nenhuma;

namespace {

// Windows-1252 and Latin-1 agree outside 0x80-0x9F: such a text is its own bytes.
bool latin1Seguro(const QString& texto)
{
    for (const QChar c : texto) {
        const char16_t u = c.unicode();
        if (u >= 0x100 || (u >= 0x80 && u < 0xA0))
            return false;
    }
    return true;
}

// The empty form of a layout, computed once per layout: most fields of a record keep it. `exata` when every
// empty field has its width in Latin-1, so that the record starts as one line.
struct FormaVazia {
    bool exata = true;
    QByteArray linha;
    QVector<QString> valores;
};

const FormaVazia& formaVazia(const LayoutRegistro& layout)
{
    static QHash<const LayoutRegistro*, FormaVazia> cache;
    auto it = cache.find(&layout);
    if (it == cache.end()) {
        FormaVazia f;
        for (const CampoLayout& c : layout.campos) {
            const QString v = LinhaRegistro::formata(c, QString());
            f.exata = f.exata && v.size() == c.tamanho && latin1Seguro(v);
            f.linha += v.toLatin1();
            f.valores.append(v);
        }
        it = cache.insert(&layout, f);
    }
    return it.value();
}

// What trimmed() takes away.
bool espaco(char c)
{
    return c == ' ' || (c >= '\t' && c <= '\r');
}
bool espaco(QChar c)
{
    return c.isSpace();
}

// Funcoes' emBranco: empty, or nothing but spaces.
template <typename Vista>
bool emBranco(Vista v)
{
    for (const auto c : v) {
        if (!espaco(c))
            return false;
    }
    return true;
}

// QString::mid on a view: nothing from beyond the end.
template <typename Vista>
Vista meio(Vista v, qsizetype inicio, qsizetype tamanho)
{
    if (inicio >= v.size())
        return Vista();
    return v.sliced(inicio, qMin(tamanho, v.size() - inicio));
}

// Where a field's text goes: a text, a byte buffer, or the field's own bytes in a record (see NoLugar).
struct SaidaTexto {
    QString& s;
    void poe(QStringView v) { s.append(v); }
    void enche(char c, qsizetype n)
    {
        if (n > 0)
            s.append(QString(n, QLatin1Char(c)));
    }
    void poeConstante(const QString& k) { s.append(k); }
};

struct SaidaBytes {
    QByteArray& b;
    void poe(QByteArrayView v) { b.append(v); }
    void enche(char c, qsizetype n)
    {
        if (n > 0)
            b.append(n, c);
    }
    void poeConstante(const QString& k) { b.append(k.toLatin1()); }
};

// Straight into a record's bytes, never past the field: `exato()` when the text filled its width exactly. What
// was written of a text that did not fit is replaced by the caller.
struct NoLugar {
    char* d;
    char* fim;
    bool cabe = true;
    void poe(QByteArrayView v)
    {
        if (v.size() > fim - d) {
            cabe = false;
            return;
        }
        if (!v.isEmpty())
            std::memcpy(d, v.data(), size_t(v.size()));
        d += v.size();
    }
    void enche(char c, qsizetype n)
    {
        if (n <= 0)
            return;
        if (n > fim - d) {
            cabe = false;
            return;
        }
        std::memset(d, c, size_t(n));
        d += n;
    }
    void poeConstante(const QString& k) { poe(QByteArrayView(k.toLatin1())); }
    bool exato() const { return cabe && d == fim; }
};

// ZeroEsquerda: zeros before the value up to the width; a blank value is "0", so all zeros.
template <typename Vista, typename Saida>
void zeroEsquerda(Vista v, qsizetype tamanho, Saida& s)
{
    if (emBranco(v)) {
        s.enche('0', qMax<qsizetype>(tamanho, 1));
        return;
    }
    s.enche('0', tamanho - v.size());
    s.poe(v);
}

// TiraCaractere of the comma, then ZeroEsquerda: what is left without its commas, zero-filled; all zeros for a
// value that is blank before or after the commas go.
template <typename Vista, typename Saida>
void decimal(Vista v, qsizetype tamanho, Saida& s)
{
    qsizetype digitos = 0;
    bool branco = true;
    for (const auto c : v) {
        if (c != u',') {
            ++digitos;
            branco = branco && espaco(c);
        }
    }
    if (branco) {
        s.enche('0', qMax<qsizetype>(tamanho, 1));
        return;
    }
    s.enche('0', tamanho - digitos);
    qsizetype inicio = 0;
    for (qsizetype i = 0; i <= v.size(); ++i) {
        if (i == v.size() || v[i] == u',') {
            if (i > inicio)
                s.poe(v.sliced(inicio, i - inicio));
            inicio = i + 1;
        }
    }
}

// The one formatting of a field by its kind, on a text (QStringView) or on ASCII bytes (QByteArrayView); a null
// view is a null value:
//  N ZeroEsquerda; X BrancoDireita; R BrancoEsquerda; D2/D5/D7 TiraCaractere of the comma, then ZeroEsquerda;
//  DT characters 5-8, 3-4, 1-2 of ddmmyyyy, then ZeroEsquerda to 8; K the value, or the constant when null;
//  A the value as it is.
template <typename Vista, typename Saida>
void formataCampo(const CampoLayout& campo, Vista v, Saida& s)
{
    const qsizetype w = campo.tamanho;
    switch (campo.tipo) {
    case TipoCampo::N:
        zeroEsquerda(v, w, s);
        return;
    case TipoCampo::X:
        s.poe(v);
        s.enche(' ', w - v.size());
        return;
    case TipoCampo::R:
        s.enche(' ', w - v.size());
        s.poe(v);
        return;
    case TipoCampo::D2:
    case TipoCampo::D5:
    case TipoCampo::D7:
        decimal(v, w, s);
        return;
    case TipoCampo::DT: {
        const Vista partes[] = {meio(v, 4, 4), meio(v, 2, 2), meio(v, 0, 2)};
        qsizetype n = 0;
        bool branco = true;
        for (const Vista& p : partes) {
            n += p.size();
            branco = branco && emBranco(p);
        }
        if (branco) {
            s.enche('0', 8);
            return;
        }
        s.enche('0', 8 - n);
        for (const Vista& p : partes)
            s.poe(p);
        return;
    }
    case TipoCampo::K:
        if (v.isNull())
            s.poeConstante(campo.constante);
        else
            s.poe(v);
        return;
    case TipoCampo::A:
        s.poe(v);
        return;
    }
}

}  // namespace

bool LinhaRegistro::formataAscii(const CampoLayout& campo, QByteArrayView valor, QByteArray& saida)
{
    if (!soAscii(valor))
        return false;
    saida.resize(0);
    SaidaBytes s{saida};
    formataCampo(campo, valor, s);
    return true;
}

LinhaRegistro::LinhaRegistro(const LayoutRegistro& layout) : m_layout(&layout)
{
    limpa();
}

void LinhaRegistro::limpa()
{
    const FormaVazia& f = formaVazia(*m_layout);
    m_exata = f.exata;
    if (m_exata) {
        // Copied into the line's own bytes, so that a line used row after row allocates nothing.
        m_linha.resize(f.linha.size());
        std::memcpy(m_linha.data(), f.linha.constData(), size_t(f.linha.size()));
        m_valores.clear();
    } else {
        m_valores = f.valores;
    }
}

void LinhaRegistro::separaCampos()
{
    m_valores.clear();
    m_valores.reserve(m_layout->campos.size());
    for (const CampoLayout& c : m_layout->campos)
        m_valores.append(QString::fromLatin1(m_linha.constData() + c.posicao - 1, c.tamanho));
    m_exata = false;
}

void LinhaRegistro::coloca(int indice, const QString& texto)
{
    const CampoLayout& c = m_layout->campos.at(indice);
    if (m_exata && texto.size() == c.tamanho && latin1Seguro(texto)) {
        char* d = m_linha.data() + (c.posicao - 1);
        for (const QChar ch : texto)
            *d++ = static_cast<char>(ch.unicode());
        return;
    }
    if (m_exata)
        separaCampos();
    m_valores[indice] = texto;
}

void LinhaRegistro::poeUtf8(int indice, QByteArrayView valor)
{
    const CampoLayout& c = m_layout->campos.at(indice);
    if (!soAscii(valor)) {
        coloca(indice, formata(c, QString::fromUtf8(valor)));
        return;
    }
    if (m_exata) {
        char* campo = m_linha.data() + (c.posicao - 1);
        NoLugar s{campo, campo + c.tamanho};
        formataCampo(c, valor, s);
        if (s.exato())
            return;
    }
    formataAscii(c, valor, m_formatado);
    coloca(indice, QString::fromLatin1(m_formatado));
}

static int indiceDe(const LayoutRegistro& layout, const QString& nome)
{
    const int i = layout.indice(nome);
    if (i < 0)
        qFatal("Registro %s sem o campo %s", qPrintable(layout.tipo), qPrintable(nome));
    return i;
}

void LinhaRegistro::poe(const QString& nome, const QString& valor)
{
    poe(indiceDe(*m_layout, nome), valor);
}

void LinhaRegistro::poe(int indice, const QString& valor)
{
    coloca(indice, formata(m_layout->campos.at(indice), valor));
}

void LinhaRegistro::poeComoEsta(const QString& nome, const QString& texto)
{
    coloca(indiceDe(*m_layout, nome), texto);
}

void LinhaRegistro::poeComoEsta(int indice, const QString& texto)
{
    coloca(indice, texto);
}

QString LinhaRegistro::valor(const QString& nome) const
{
    const int i = indiceDe(*m_layout, nome);
    if (!m_exata)
        return m_valores.at(i);
    const CampoLayout& c = m_layout->campos.at(i);
    return QString::fromLatin1(m_linha.constData() + c.posicao - 1, c.tamanho);
}

QString LinhaRegistro::formata(const CampoLayout& campo, const QString& valor)
{
    QString texto;
    SaidaTexto s{texto};
    formataCampo(campo, QStringView(valor), s);
    return texto;
}

QString LinhaRegistro::texto() const
{
    QString s;
    compoeEm(s, 1);
    return s;
}

int LinhaRegistro::compoeEm(QString& destino, int coluna) const
{
    if (m_exata) {
        // The fields follow one another from column 1: the placing below gives this very text.
        if (coluna > 1)
            destino += QLatin1String("\r\n");
        destino += QLatin1String(m_linha);
        return 1 + int(m_linha.size());
    }
    // Each field is placed at its own column, as the old writer's tabulation did: blanks up to the column, or,
    // when an earlier value ran past it, a line end and blanks up to the column on the new line.
    for (int i = 0; i < m_valores.size(); ++i) {
        const int posicao = m_layout->campos.at(i).posicao;
        if (coluna > posicao) {
            destino += QLatin1String("\r\n");
            coluna = 1;
        }
        if (coluna < posicao)
            destino.append(QString(posicao - coluna, QLatin1Char(' ')));
        destino += m_valores.at(i);
        coluna = posicao + m_valores.at(i).size();
    }
    return coluna;
}
