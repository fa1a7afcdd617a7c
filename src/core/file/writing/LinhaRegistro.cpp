#include "core/file/writing/LinhaRegistro.h"

#include "core/file/writing/MapaColunas.h"
#include "core/rules/Formatadores.h"
#include "core/store/ComandoSqlite.h"

#include <QHash>

#include <cstring>

using namespace Funcoes;

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

// QChar::isSpace for ASCII: what trimmed() takes away.
bool espaco(char c)
{
    return c == ' ' || (c >= '\t' && c <= '\r');
}

// Funcoes' emBranco: empty, or nothing but spaces.
bool emBranco(QByteArrayView v)
{
    for (const char c : v) {
        if (!espaco(c))
            return false;
    }
    return true;
}

void zeroEsquerda(QByteArrayView v, int tamanho, QByteArray& saida)
{
    if (emBranco(v))
        v = "0";
    if (v.size() < tamanho)
        saida.append(tamanho - v.size(), '0');
    saida.append(v);
}

// TiraCaractere of the comma, then ZeroEsquerda: what is left without its commas, zero-filled; "0" for a value
// that is blank before or after the commas go.
void decimal(QByteArrayView v, int tamanho, QByteArray& saida)
{
    qsizetype digitos = 0;
    bool branco = true;
    for (const char c : v) {
        if (c != ',') {
            ++digitos;
            branco = branco && espaco(c);
        }
    }
    if (emBranco(v) || branco) {
        zeroEsquerda(QByteArrayView(), tamanho, saida);
        return;
    }
    if (digitos < tamanho)
        saida.append(tamanho - digitos, '0');
    for (const char c : v) {
        if (c != ',')
            saida.append(c);
    }
}

// QString::mid on bytes: nothing from beyond the end.
QByteArrayView meio(QByteArrayView v, qsizetype inicio, qsizetype tamanho)
{
    if (inicio >= v.size())
        return QByteArrayView();
    return QByteArrayView(v.data() + inicio, qMin(tamanho, v.size() - inicio));
}

}  // namespace

bool LinhaRegistro::formataAscii(const CampoLayout& campo, QByteArrayView valor, QByteArray& saida)
{
    for (const char c : valor) {
        if (static_cast<unsigned char>(c) >= 0x80)
            return false;
    }
    saida.resize(0);
    const int w = campo.tamanho;
    switch (campo.tipo) {
    case TipoCampo::N:
        zeroEsquerda(valor, w, saida);
        return true;
    case TipoCampo::X:
        saida.append(valor);
        if (valor.size() < w)
            saida.append(w - valor.size(), ' ');
        return true;
    case TipoCampo::R:
        if (valor.size() < w)
            saida.append(w - valor.size(), ' ');
        saida.append(valor);
        return true;
    case TipoCampo::D2:
    case TipoCampo::D5:
    case TipoCampo::D7:
        decimal(valor, w, saida);
        return true;
    case TipoCampo::DT: {
        // Characters 5-8, 3-4 and 1-2 of ddmmyyyy, as far as the value has them.
        char data[8];
        qsizetype n = 0;
        for (const QByteArrayView parte : {meio(valor, 4, 4), meio(valor, 2, 2), meio(valor, 0, 2)}) {
            for (const char c : parte)
                data[n++] = c;
        }
        zeroEsquerda(QByteArrayView(data, n), 8, saida);
        return true;
    }
    case TipoCampo::K:
        if (valor.isNull())
            saida.append(campo.constante.toLatin1());
        else
            saida.append(valor);
        return true;
    case TipoCampo::A:
        saida.append(valor);
        return true;
    }
    return false;
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

namespace {

// The commonest case of formataAscii, written straight into the record: an N, X or D field whose ASCII value
// fits its width. False, having written nothing, for anything else.
bool poeNoLugar(const CampoLayout& c, QByteArrayView v, char* destino)
{
    const qsizetype w = c.tamanho;
    qsizetype n = 0;       // the characters written (without the commas of a decimal)
    bool branco = true;
    for (const char ch : v) {
        if (static_cast<unsigned char>(ch) >= 0x80)
            return false;
        if (ch != ',' || c.tipo == TipoCampo::N || c.tipo == TipoCampo::X) {
            ++n;
            branco = branco && espaco(ch);
        }
    }
    switch (c.tipo) {
    case TipoCampo::X:
        if (v.size() > w)
            return false;
        if (!v.isEmpty())
            std::memcpy(destino, v.data(), size_t(v.size()));
        std::memset(destino + v.size(), ' ', size_t(w - v.size()));
        return true;
    case TipoCampo::N:
    case TipoCampo::D2:
    case TipoCampo::D5:
    case TipoCampo::D7:
        // A blank value, before or after its commas go, is zero: the field is all zeros.
        if (branco || emBranco(v)) {
            std::memset(destino, '0', size_t(w));
            return true;
        }
        if (n > w)
            return false;
        std::memset(destino, '0', size_t(w - n));
        destino += w - n;
        for (const char ch : v) {
            if (ch != ',' || c.tipo == TipoCampo::N)
                *destino++ = ch;
        }
        return true;
    default:
        return false;
    }
}

}  // namespace

void LinhaRegistro::poeUtf8(int indice, QByteArrayView valor)
{
    const CampoLayout& c = m_layout->campos.at(indice);
    if (m_exata && poeNoLugar(c, valor, m_linha.data() + (c.posicao - 1)))
        return;
    if (m_exata && formataAscii(c, valor, m_formatado) && m_formatado.size() == c.tamanho) {
        std::memcpy(m_linha.data() + (c.posicao - 1), m_formatado.constData(), size_t(c.tamanho));
        return;
    }
    coloca(indice, formata(c, valor.isNull() ? QString() : QString::fromUtf8(valor)));
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

void LinhaRegistro::preenche(const ComandoSqlite& linha, const MapaColunas& mapa)
{
    QByteArrayView v;
    for (const MapaColunas::Par& p : mapa.pares()) {
        if (linha.utf8(p.coluna, v))
            poeUtf8(p.campo, v);
        else
            poe(p.campo, linha.texto(p.coluna));
    }
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
    switch (campo.tipo) {
    case TipoCampo::N:
        return ZeroEsquerda(valor, campo.tamanho);
    case TipoCampo::X:
        return BrancoDireita(valor, campo.tamanho);
    case TipoCampo::R:
        return BrancoEsquerda(valor, campo.tamanho);
    case TipoCampo::D2:
    case TipoCampo::D5:
    case TipoCampo::D7:
        return ZeroEsquerda(TiraCaractere(valor, QStringLiteral(",")), campo.tamanho);
    case TipoCampo::DT:
        return ZeroEsquerda(valor.mid(4, 4) + valor.mid(2, 2) + valor.mid(0, 2), 8);
    case TipoCampo::K:
        return valor.isNull() ? campo.constante : valor;
    case TipoCampo::A:
        return valor.isNull() ? QStringLiteral("") : valor;
    }
    return valor;
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
