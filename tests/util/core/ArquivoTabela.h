#pragma once
// Table files for tests, composed from the line layouts by hand (never by the import under test), and the real
// NCM table of the reference fixtures converted into the same layout.
#include <QByteArray>
#include <QFile>
#include <QHash>
#include <QString>
#include <QStringDecoder>
#include <QStringEncoder>
#include <QStringList>

namespace ArquivoTabela {

// A field of `tamanho` positions: cut when longer, blanks behind when shorter.
inline QString fixo(const QString& valor, int tamanho)
{
    return valor.left(tamanho).leftJustified(tamanho, QLatin1Char(' '));
}

inline QString cabecalho(const QString& resto = QStringLiteral("0 TABELAS DE REFERENCIA"))
{
    return QStringLiteral("00VRT/PLN") + resto;
}
inline QString moeda(const QString& codigo, const QString& nome)
{
    return QStringLiteral("01") + fixo(codigo, 3) + fixo(nome, 35);
}
inline QString ncm(const QString& codigo, const QString& descricao, const QString& unidade)
{
    return QStringLiteral("02") + fixo(codigo, 8) + fixo(descricao, 80) + fixo(unidade, 50);
}
inline QString produto(const QString& codigo, const QString& nome)
{
    return QStringLiteral("03") + fixo(codigo, 15) + fixo(nome, 80);
}
inline QString uf(const QString& codigo, const QString& nome)
{
    return QStringLiteral("04") + fixo(codigo, 2) + fixo(nome, 25);
}
inline QString unidade(const QString& codigo, const QString& nome)
{
    return QStringLiteral("05") + fixo(codigo, 2) + fixo(nome, 50);
}

// Writes the lines as Windows-1252 with CR LF after each line.
inline bool grava(const QString& caminho, const QStringList& linhas)
{
    QFile f(caminho);
    if (!f.open(QIODevice::WriteOnly | QIODevice::Truncate))
        return false;
    QStringEncoder codificador("windows-1252");
    QByteArray bytes;
    for (const QString& l : linhas)
        bytes += QByteArray(codificador.encode(l)) + "\r\n";
    return f.write(bytes) == bytes.size();
}

// One line of a ";"-separated file whose values may stand in double quotes.
inline QStringList camposCsv(const QString& linha)
{
    QStringList campos;
    QString atual;
    bool entreAspas = false;
    for (int i = 0; i < linha.size(); ++i) {
        const QChar c = linha.at(i);
        if (entreAspas) {
            if (c == QLatin1Char('"') && i + 1 < linha.size() && linha.at(i + 1) == QLatin1Char('"')) {
                atual += c;
                ++i;
            } else if (c == QLatin1Char('"')) {
                entreAspas = false;
            } else {
                atual += c;
            }
        } else if (c == QLatin1Char('"')) {
            entreAspas = true;
        } else if (c == QLatin1Char(';')) {
            campos << atual;
            atual.clear();
        } else {
            atual += c;
        }
    }
    campos << atual;
    return campos;
}

inline QStringList linhasLatin1(const QString& caminho)
{
    QFile f(caminho);
    if (!f.open(QIODevice::ReadOnly))
        return {};
    QStringDecoder d(QStringDecoder::Latin1);
    QStringList linhas = QString(d.decode(f.readAll())).split(QStringLiteral("\r\n"), Qt::SkipEmptyParts);
    if (!linhas.isEmpty())
        linhas.removeFirst();  // column titles
    return linhas;
}

// The Comex Stat NCM table (13,726 eight-digit codes) with the names of their statistical units, as lines of
// type 02. Each value is the CSV's code, its Portuguese description and the unit's name.
struct Ncm {
    QString codigo, descricao, unidade;
};
inline QList<Ncm> ncmReal(const QString& pastaRefdata)
{
    QHash<QString, QString> unidades;
    for (const QString& l : linhasLatin1(pastaRefdata + QStringLiteral("/ncm_unidade_estatistica_comexstat.csv"))) {
        const QStringList c = camposCsv(l);
        if (c.size() >= 2)
            unidades.insert(c.at(0), c.at(1));
    }
    QList<Ncm> ncms;
    for (const QString& l : linhasLatin1(pastaRefdata + QStringLiteral("/ncm_comexstat_NCM.csv"))) {
        const QStringList c = camposCsv(l);
        if (c.size() >= 12)
            ncms.append({c.at(0), c.at(11), unidades.value(c.at(1))});
    }
    return ncms;
}
inline QStringList linhasNcm(const QList<Ncm>& ncms)
{
    QStringList linhas{cabecalho()};
    for (const Ncm& n : ncms)
        linhas << ncm(n.codigo, n.descricao, n.unidade);
    return linhas;
}

}  // namespace ArquivoTabela
