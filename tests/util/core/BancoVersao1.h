#pragma once
// Old-version databases for the tests of the legacy import: every table the import reads, shaped like the
// present table of that name less the columns version 1.0 did not have, filled with the rows a test gives, written
// by EscritorJet4 and checked by reading every table back with mdbtools' own mdb-export.
#include "EscritorJet4.h"
#include "core/legacy/ImportaBancoAnterior.h"
#include "core/store/modBancoDados.h"

#include <QHash>
#include <QProcess>
#include <QRegularExpression>
#include <QSet>
#include <QSqlQuery>
#include <QStringList>
#include <QVariantMap>

namespace BancoVersao1 {

// The columns version 1.0 lacked, as the old file's description lists them (kept apart from the importer's own
// list, so that a slip in either shows).
inline bool ColunaNova(const QString& tabela, const QString& coluna)
{
    static const QSet<QString> dsi = {"CD_MOEDA_NEG", "CD_MOEDA_FRETE", "CD_MOEDA_SEGURO", "VL_PROD_UNID_PROD",
                                      "VL_INS_UNID_PROD", "VL_FRETE_UNID_INT", "VL_SEGURO_UNID_INT",
                                      "IND_SUSP_PIS_COFINS"};
    if (tabela == "DESTINO_ITEM_VRT_MEN")
        return coluna == "VL_PIS" || coluna == "VL_COFINS";
    if (tabela.startsWith("ITEM_DI_"))
        return coluna == "IND_SUSP_PIS_COFINS";
    if (tabela.startsWith("ITEM_DSI_"))
        return dsi.contains(coluna);
    return false;
}

// The width of each text column of a present table, from its CHECK(length(...) <= n).
inline QHash<QString, int> Larguras(const QString& tabela)
{
    const QString sql = modBancoDados::ValorUnico("SELECT sql FROM sqlite_master WHERE type = 'table' AND name = ?",
                                                  {tabela})
                            .toString();
    QHash<QString, int> r;
    QRegularExpression re("length\\((\\w+)\\) <= (\\d+)");
    for (auto it = re.globalMatch(sql); it.hasNext();) {
        const auto m = it.next();
        r.insert(m.captured(1), m.captured(2).toInt());
    }
    return r;
}

// An empty old database: every table the import reads, with the old columns.
inline QList<TabelaJet> Vazio()
{
    QList<TabelaJet> r;
    for (const QString& tabela : BancoAnterior::TabelasImportadas()) {
        TabelaJet t{tabela, {}, {}};
        QSqlQuery q(modBancoDados::ConexaoBanco());
        q.exec("SELECT name, type FROM pragma_table_info('" + tabela + "') ORDER BY cid");
        while (q.next()) {
            const QString nome = q.value(0).toString();
            if (ColunaNova(tabela, nome))
                continue;
            const ColunaJet::Tipo tipo = nome.startsWith("DT_REGISTRO_VRT") ? ColunaJet::DataHora
                                         : q.value(1).toString() == "INTEGER" ? ColunaJet::Longo
                                                                               : ColunaJet::Texto;
            t.colunas.append({nome, tipo});
        }
        r << t;
    }
    return r;
}

inline TabelaJet* Tabela(QList<TabelaJet>& banco, const QString& nome)
{
    for (TabelaJet& t : banco) {
        if (t.nome == nome)
            return &t;
    }
    return nullptr;
}

// Adds a row; columns not named are Null.
inline void Insere(QList<TabelaJet>& banco, const QString& tabela, const QVariantMap& valores)
{
    TabelaJet* t = Tabela(banco, tabela);
    QVariantList linha;
    for (const ColunaJet& c : t->colunas)
        linha << valores.value(c.nome);
    t->linhas << linha;
}

// The text mdb-export gives for a value the writer was given.
inline QString TextoExportado(const QVariant& v)
{
    return v.isNull() ? QString() : v.toString();
}

// Writes the file and reads every table back with mdb-export; gives what differs (empty when all agree).
inline QString Grava(const QList<TabelaJet>& banco, const QString& caminho)
{
    if (!EscreveJet4(caminho, banco))
        return "o arquivo não pôde ser escrito";
    for (const TabelaJet& t : banco) {
        QProcess p;
        p.start("mdb-export", {"-H", "-d", "\t", "-q", "", "-T", "%Y-%m-%d", caminho, t.nome});
        if (!p.waitForFinished(60000) || p.exitCode() != 0)
            return "mdb-export falhou em " + t.nome + ": " + QString::fromUtf8(p.readAllStandardError());
        QStringList linhas = QString::fromUtf8(p.readAllStandardOutput()).split('\n');
        if (!linhas.isEmpty() && linhas.last().isEmpty())
            linhas.removeLast();
        if (linhas.size() != t.linhas.size())
            return QString("%1: %2 linhas lidas, %3 escritas").arg(t.nome).arg(linhas.size()).arg(t.linhas.size());
        for (int i = 0; i < linhas.size(); ++i) {
            QStringList esperado;
            for (const QVariant& v : t.linhas.at(i))
                esperado << TextoExportado(v);
            if (linhas.at(i) != esperado.join('\t'))
                return QString("%1, linha %2: lido \"%3\", escrito \"%4\"").arg(t.nome).arg(i + 1).arg(linhas.at(i),
                                                                                                  esperado.join('\t'));
        }
    }
    return QString();
}

}  // namespace BancoVersao1
