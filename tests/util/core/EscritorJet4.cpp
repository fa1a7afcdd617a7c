#include "EscritorJet4.h"

#include <QFile>
#include <QtEndian>

namespace {

constexpr int Pagina = 4096;
constexpr int InicioLinhas = 14;  // data page: type, flags, free space, owner, unused, row count
constexpr int MaxLinhasPagina = 255;

// Column kinds of the format and their sizes in a row's fixed part.
constexpr quint8 TipoLongo = 0x04;
constexpr quint8 TipoDataHora = 0x08;
constexpr quint8 TipoTexto = 0x0A;
constexpr quint8 TipoOle = 0x0B;

struct Coluna {
    QString nome;
    quint8 tipo;
    bool fixa() const { return tipo == TipoLongo || tipo == TipoDataHora; }
    int tamanhoFixo() const { return tipo == TipoLongo ? 4 : tipo == TipoDataHora ? 8 : 0; }
};

struct Tabela {
    QString nome;
    QList<Coluna> colunas;
    QList<QVariantList> linhas;
    bool sistema = false;
};

void poe16(QByteArray& b, int pos, int v) { qToLittleEndian<quint16>(quint16(v), b.data() + pos); }
void poe32(QByteArray& b, int pos, qint64 v) { qToLittleEndian<quint32>(quint32(v), b.data() + pos); }
void junta16(QByteArray& b, int v)
{
    b.append(char(v & 0xFF));
    b.append(char((v >> 8) & 0xFF));
}

QByteArray ucs2(const QString& s)
{
    QByteArray r;
    for (QChar c : s)
        junta16(r, c.unicode());
    return r;
}

// The value of a fixed column as its bytes: a whole number, or a date as days since 30/12/1899.
QByteArray fixo(const Coluna& c, const QVariant& v)
{
    QByteArray r(c.tamanhoFixo(), '\0');
    if (v.isNull())
        return r;
    if (c.tipo == TipoLongo) {
        poe32(r, 0, v.toLongLong());
    } else {
        const QDate d = v.typeId() == QMetaType::QDate ? v.toDate() : QDate::fromString(v.toString(), Qt::ISODate);
        const double dias = double(QDate(1899, 12, 30).daysTo(d));
        qToLittleEndian<double>(dias, r.data());
    }
    return r;
}

// One row: column count, fixed part, variable part, end of data, variable offsets from the last column to the
// first, their count, and the mask in which a set bit marks a column that is not Null.
QByteArray linha(const Tabela& t, const QVariantList& valores)
{
    const int n = int(t.colunas.size());
    QByteArray r;
    junta16(r, n);
    for (int i = 0; i < n; ++i) {
        if (t.colunas.at(i).fixa())
            r.append(fixo(t.colunas.at(i), valores.value(i)));
    }
    QList<int> inicios;
    for (int i = 0; i < n; ++i) {
        if (t.colunas.at(i).fixa())
            continue;
        inicios << int(r.size());
        const QVariant& v = valores.value(i);
        if (!v.isNull())
            r.append(ucs2(v.toString()));
    }
    junta16(r, int(r.size()));
    for (int k = int(inicios.size()) - 1; k >= 0; --k)
        junta16(r, inicios.at(k));
    junta16(r, int(inicios.size()));
    QByteArray mascara((n + 7) / 8, '\0');
    for (int i = 0; i < n; ++i) {
        if (!valores.value(i).isNull())
            mascara[i / 8] = char(mascara.at(i / 8) | (1 << (i % 8)));
    }
    return r + mascara;
}

QByteArray paginaDados(qint64 dona)
{
    QByteArray p(Pagina, '\0');
    p[0] = 0x01;
    p[1] = 0x01;
    poe32(p, 4, dona);
    return p;
}

// Rows go from the end of the page downwards; their offsets follow the header in row order.
bool cabe(const QByteArray& p, int tamanho)
{
    const int linhas = qFromLittleEndian<quint16>(p.constData() + 12);
    const int fim = linhas == 0 ? Pagina : qFromLittleEndian<quint16>(p.constData() + InicioLinhas + 2 * (linhas - 1));
    return linhas < MaxLinhasPagina && fim - tamanho >= InicioLinhas + 2 * (linhas + 1);
}

int poeLinha(QByteArray& p, const QByteArray& l)
{
    const int linhas = qFromLittleEndian<quint16>(p.constData() + 12);
    const int fim = linhas == 0 ? Pagina : qFromLittleEndian<quint16>(p.constData() + InicioLinhas + 2 * (linhas - 1));
    const int inicio = fim - int(l.size());
    p.replace(inicio, l.size(), l);
    poe16(p, InicioLinhas + 2 * linhas, inicio);
    poe16(p, 12, linhas + 1);
    poe16(p, 2, inicio - (InicioLinhas + 2 * (linhas + 1)));
    return linhas;
}

// The rows of a table packed into data pages, owned by its definition page.
bool paginas(const Tabela& t, qint64 dona, QList<QByteArray>& saida)
{
    QByteArray atual = paginaDados(dona);
    bool vazia = true;
    for (const QVariantList& valores : t.linhas) {
        const QByteArray l = linha(t, valores);
        if (l.size() > Pagina - InicioLinhas - 2)
            return false;
        if (!cabe(atual, int(l.size()))) {
            saida << atual;
            atual = paginaDados(dona);
        }
        poeLinha(atual, l);
        vazia = false;
    }
    if (!vazia)
        saida << atual;
    return true;
}

// The definition page: counts, where the usage map lies, the column descriptors and the names.
QByteArray definicao(const Tabela& t, qint64 mapa)
{
    QByteArray p(Pagina, '\0');
    p[0] = 0x02;
    p[1] = 0x01;
    const int n = int(t.colunas.size());
    int variaveis = 0;
    for (const Coluna& c : t.colunas)
        variaveis += c.fixa() ? 0 : 1;
    poe32(p, 16, t.linhas.size());
    poe32(p, 20, t.linhas.size() + 1);
    p[40] = t.sistema ? 0x53 : 0x4E;
    poe16(p, 41, n);
    poe16(p, 43, variaveis);
    poe16(p, 45, n);
    poe32(p, 55, mapa);
    poe32(p, 59, mapa);
    int pos = 63;
    int deslocamento = 0;
    int indiceVariavel = 0;
    for (int i = 0; i < n; ++i) {
        const Coluna& c = t.colunas.at(i);
        p[pos] = char(c.tipo);
        poe16(p, pos + 5, i);
        poe16(p, pos + 7, c.fixa() ? 0 : indiceVariavel++);
        poe16(p, pos + 9, i);
        if (c.tipo == TipoTexto)
            poe16(p, pos + 11, 0x0409);  // general sort order
        p[pos + 15] = char((c.fixa() ? 0x01 : 0x00) | 0x02);
        poe16(p, pos + 21, c.fixa() ? deslocamento : 0);
        poe16(p, pos + 23, c.fixa() ? c.tamanhoFixo() : c.tipo == TipoTexto ? 510 : 0);
        deslocamento += c.tamanhoFixo();
        pos += 25;
    }
    for (const Coluna& c : t.colunas) {
        const QByteArray nome = ucs2(c.nome);
        poe16(p, pos, int(nome.size()));
        p.replace(pos + 2, nome.size(), nome);
        pos += 2 + int(nome.size());
    }
    poe32(p, 8, pos);
    return pos <= Pagina ? p : QByteArray();
}

// The usage map of pages [primeira, primeira + quantas): map type 0, its first page, one bit per page.
QByteArray mapaUso(qint64 primeira, int quantas)
{
    QByteArray m(5 + (quantas + 7) / 8, '\0');
    poe32(m, 1, primeira);
    for (int i = 0; i < quantas; ++i)
        m[5 + i / 8] = char(m.at(5 + i / 8) | (1 << (i % 8)));
    return m;
}

void rc4(QByteArray& dados, int inicio, int tamanho, const QByteArray& chave)
{
    unsigned char s[256];
    for (int i = 0; i < 256; ++i)
        s[i] = static_cast<unsigned char>(i);
    for (int i = 0, j = 0; i < 256; ++i) {
        j = (j + s[i] + static_cast<unsigned char>(chave.at(i % chave.size()))) & 0xFF;
        std::swap(s[i], s[j]);
    }
    for (int k = 0, i = 0, j = 0; k < tamanho; ++k) {
        i = (i + 1) & 0xFF;
        j = (j + s[i]) & 0xFF;
        std::swap(s[i], s[j]);
        dados[inicio + k] = char(dados.at(inicio + k) ^ s[(s[i] + s[j]) & 0xFF]);
    }
}

// Page 0: the signature, version 1 (Jet 4), and the 128 bytes from 0x18 hidden under the format's fixed RC4 key,
// with code page 1252, no database key and language 0x0409.
QByteArray cabecalho()
{
    QByteArray p(Pagina, '\0');
    p[1] = 0x01;
    const QByteArray assinatura("Standard Jet DB");
    p.replace(4, assinatura.size(), assinatura);
    p[0x14] = 0x01;
    poe16(p, 0x3C, 1252);
    poe16(p, 0x6E, 0x0409);
    const char chave[] = {char(0xC7), char(0xDA), char(0x39), char(0x6B)};
    rc4(p, 0x18, 128, QByteArray(chave, 4));
    return p;
}

Tabela converte(const TabelaJet& t)
{
    Tabela r{t.nome, {}, t.linhas, false};
    for (const ColunaJet& c : t.colunas) {
        const quint8 tipo = c.tipo == ColunaJet::Longo ? TipoLongo : c.tipo == ColunaJet::DataHora ? TipoDataHora : TipoTexto;
        r.colunas.append({c.nome, tipo});
    }
    return r;
}

Tabela catalogo()
{
    Tabela t{QStringLiteral("MSysObjects"),
             {{QStringLiteral("Id"), TipoLongo}, {QStringLiteral("ParentId"), TipoLongo},
              {QStringLiteral("Name"), TipoTexto}, {QStringLiteral("Type"), TipoLongo},
              {QStringLiteral("Flags"), TipoLongo}, {QStringLiteral("LvProp"), TipoOle}},
             {},
             true};
    return t;
}

}  // namespace

bool EscreveJet4(const QString& caminho, const QList<TabelaJet>& tabelasJet)
{
    // Page 1 holds one usage map per table (the catalog first), page 2 the catalog's definition, then each table's
    // definition and data, and the catalog's data at the end, once every table's page is known.
    QList<Tabela> tabelas;
    for (const TabelaJet& t : tabelasJet)
        tabelas << converte(t);
    Tabela msys = catalogo();
    QByteArray mapas = paginaDados(0);
    QList<QByteArray> saida{cabecalho(), QByteArray(), QByteArray()};
    for (int i = 0; i < tabelas.size(); ++i) {
        const Tabela& t = tabelas.at(i);
        const qint64 pagDef = saida.size();
        QList<QByteArray> dados;
        if (!paginas(t, pagDef, dados))
            return false;
        const QByteArray mapa = mapaUso(pagDef + 1, int(dados.size()));
        if (!cabe(mapas, int(mapa.size())))
            return false;
        const int linhaMapa = poeLinha(mapas, mapa);
        const QByteArray def = definicao(t, (1 << 8) | linhaMapa);
        if (def.isEmpty())
            return false;
        saida << def << dados;
        msys.linhas << QVariantList{pagDef, 0x0F000001, t.nome, 1, 0, QVariant()};
    }
    const qint64 inicioMsys = saida.size();
    QList<QByteArray> dadosMsys;
    if (!paginas(msys, 2, dadosMsys))
        return false;
    const QByteArray mapa = mapaUso(inicioMsys, int(dadosMsys.size()));
    if (!cabe(mapas, int(mapa.size())))
        return false;
    saida[2] = definicao(msys, (1 << 8) | poeLinha(mapas, mapa));
    saida[1] = mapas;
    saida << dadosMsys;

    QFile f(caminho);
    if (!f.open(QIODevice::WriteOnly | QIODevice::Truncate))
        return false;
    for (const QByteArray& p : saida) {
        if (f.write(p) != p.size())
            return false;
    }
    return f.flush();
}
