// A large declaration of every modality, with rows in every table the copy moves, copied as "Retificadora": each
// table of the copy holds the source's rows, in the source's order, value for value, with the keys aside (the own
// counter left out, the parent named by its place among the parents instead of its key).
#include "TestUtil.h"

#include "core/copy/CopiaVrt.h"
#include "core/store/modBancoDados.h"

#include <QHash>
#include <QRegularExpression>
#include <QSqlQuery>
#include <QSqlRecord>
#include <QtTest>

namespace {

using modBancoDados::ExecutaSql;
using modBancoDados::ValorUnico;

const QString ORIGEM = QStringLiteral("00012/09");
const QString NOVA = QStringLiteral("00013/09");
const int PorModalidade = 30;
const char* const Modalidades = "4213";  // the order the copy makes its items in

// The table's own counter (an INTEGER key alone in the primary key), or empty.
QString contador(const QString& tabela)
{
    QSqlQuery q(modBancoDados::ConexaoBanco());
    q.exec(QStringLiteral("SELECT name, type FROM pragma_table_info('%1') WHERE pk > 0").arg(tabela));
    QStringList chaves;
    QString tipo;
    while (q.next()) {
        chaves << q.value(0).toString();
        tipo = q.value(1).toString();
    }
    return chaves.size() == 1 && tipo == QLatin1String("INTEGER") ? chaves.first() : QString();
}

// Inserts a row of `tabela` whose every column not given in `fixos` holds a value made of `n` and the column's
// name, cut to the column's width; gives the new counter.
QVariant insere(const QString& tabela, const QVariantMap& fixos, int n)
{
    const QString sql = ValorUnico(QStringLiteral("SELECT sql FROM sqlite_master WHERE name = ?"), {tabela}).toString();
    QHash<QString, int> larguras;
    QRegularExpression re(QStringLiteral("length\\((\\w+)\\) <= (\\d+)"));
    for (auto it = re.globalMatch(sql); it.hasNext();) {
        const auto m = it.next();
        larguras.insert(m.captured(1), m.captured(2).toInt());
    }
    const QString proprio = contador(tabela);
    QStringList colunas;
    QVariantList valores;
    QSqlQuery q(modBancoDados::ConexaoBanco());
    q.exec(QStringLiteral("SELECT name, type FROM pragma_table_info('%1')").arg(tabela));
    while (q.next()) {
        const QString c = q.value(0).toString();
        if (c == proprio && !fixos.contains(c))
            continue;
        colunas << c;
        if (fixos.contains(c))
            valores << fixos.value(c);
        else if (q.value(1).toString() == QLatin1String("INTEGER"))
            valores << n;
        else
            valores << (QString::number(n, 36).toUpper() + c).left(larguras.value(c, 255));
    }
    ExecutaSql(QStringLiteral("INSERT INTO %1 (%2) VALUES (%3)")
                   .arg(tabela, colunas.join(QLatin1String(", ")), QStringList(colunas.size(), QStringLiteral("?")).join(QLatin1String(", "))),
               valores);
    return proprio.isEmpty() ? QVariant() : ValorUnico(QStringLiteral("SELECT max(%1) FROM %2").arg(proprio, tabela));
}

QVariantMap de(const char* coluna, const QVariant& v)
{
    return {{QString::fromLatin1(coluna), v}};
}

QVariantMap com(QVariantMap a, const char* coluna, const QVariant& v)
{
    a.insert(QString::fromLatin1(coluna), v);
    return a;
}

void cabeca(const QString& tipo)
{
    ExecutaSql(QStringLiteral("INSERT INTO VRT (ID_VRT_MICRO, CD_TIPO_VRT, NR_CNPJ_INTERNADOR, NR_VRT, IND_RETIFICACAO) "
                              "VALUES (?, ?, '12345678000195', ' ', 'N')"),
               {ORIGEM, tipo});
    insere(QStringLiteral("VALORES_DIVER_RETIF"), de("ID_VRT_MICRO", ORIGEM), 1);
    insere(QStringLiteral("VALORES_DIVER_MANDADO"), de("ID_VRT_MICRO", ORIGEM), 2);
}

// Each DI is of Decreto-Lei 288/67 or not in turn; only one that is has an import row.
void documentosMensais(const QVariantMap& pai, const char* di, const char* importacao, int n)
{
    for (int k = 0; k < 2; ++k) {
        const QString marca = k == 0 ? QStringLiteral("S") : QStringLiteral("N");
        const QVariant id = insere(QString::fromLatin1(di),
                                   com(com(pai, "IND_DL_288_67", marca), "IND_SUSP_PIS_COFINS", QStringLiteral("N")), n + k);
        if (marca == QLatin1String("S"))
            insere(QString::fromLatin1(importacao), de("ID_ITEM_DI", id), n + k);
    }
}

void mensal()
{
    cabeca(QStringLiteral("2"));
    insere(QStringLiteral("VRT_MENSAL"), de("ID_VRT_MICRO", ORIGEM), 1);
    QSet<QString> ncms, insumos;
    int n = 0;
    for (const char* m = Modalidades; *m; ++m) {
        for (int i = 0; i < PorModalidade; ++i, ++n) {
            const QString ncm = QStringLiteral("8471%1").arg(n % 7, 4, 10, QLatin1Char('0'));
            const QVariant item = insere(QStringLiteral("ITEM_VRT_MEN"),
                                         com(com(de("ID_VRT_MICRO", ORIGEM), "IND_MOD_INTERNACAO", QString(QLatin1Char(*m))),
                                             "CD_NCM_PRODUTO", ncm),
                                         n);
            const QVariantMap doItem = de("ID_ITEM_VRT", item);
            if (*m == '4')
                continue;
            if (*m == '2')
                insere(QStringLiteral("ITEM_VRT_MEN_PI_COM_PPB"), doItem, n);
            if (*m == '1')
                insere(QStringLiteral("JUST_DIF_ALIQ_PROD_VRT_MEN"), doItem, n);
            for (int d = 0; d < 2; ++d) {
                const QVariant destino = insere(QStringLiteral("DESTINO_ITEM_VRT_MEN"), doItem, n + d);
                if (*m != '1')
                    continue;
                const QVariantMap doDestino = de("ID_DEST_PRODUTO", destino);
                documentosMensais(doDestino, "ITEM_DI_PE_MEN", "ITEM_IMPORT_288_PE_MEN", n + d);
                insere(QStringLiteral("ITEM_DSI_PE_MEN"), doDestino, n + d);
                insere(QStringLiteral("ITEM_NFA_PE_MEN"), doDestino, n + d);
            }
            if (*m != '3')
                continue;
            if (!ncms.contains(ncm)) {
                ncms.insert(ncm);
                insere(QStringLiteral("NCM_VRT"), com(com(de("ID_VRT_MICRO", ORIGEM), "IN_MOD_INTERNACAO", QStringLiteral("3")),
                                                      "CD_NCM_PRODUTO", ncm),
                       n);
            }
            for (int k = 0; k < 2; ++k) {
                const QString codigo = QStringLiteral("INS-%1").arg((n + k) % 9);
                const QVariant insumo = insere(QStringLiteral("INSUMO_ITEM_VRT_MEN"),
                                               com(com(doItem, "CD_INT_INSUMO", codigo), "NR_ORDEM", k + 1), n + k);
                insere(QStringLiteral("JUST_DIF_ALIQ_INS_VRT_MEN"), de("ID_INSUMO_ITEM", insumo), n + k);
                if (!insumos.contains(codigo)) {
                    insumos.insert(codigo);
                    insere(QStringLiteral("INSUMO_VRT"), com(de("ID_VRT_MICRO", ORIGEM), "CD_INT_INSUMO", codigo), n + k);
                }
            }
        }
    }
    for (int k = 0; k < 3; ++k) {
        documentosMensais(de("ID_VRT_MICRO", ORIGEM), "ITEM_DI_INS_MEN", "ITEM_IMPORT_288_INS_MEN", 10 * k);
        insere(QStringLiteral("ITEM_DSI_INS_MEN"), de("ID_VRT_MICRO", ORIGEM), k);
        insere(QStringLiteral("ITEM_NFA_INS_MEN"), de("ID_VRT_MICRO", ORIGEM), k);
    }
}

void individual()
{
    cabeca(QStringLiteral("1"));
    ExecutaSql(QStringLiteral("INSERT INTO VRT_INDIVIDUAL (ID_VRT_MICRO, IN_SAIDA_ALC_AO) VALUES (?, 'S')"), {ORIGEM});
    QSet<QString> insumos;
    int n = 0;
    for (int nota = 0; nota < 2; ++nota) {
        const QVariant nfs = insere(QStringLiteral("NOTA_FISCAL_SAIDA"), de("ID_VRT_MICRO", ORIGEM), nota);
        for (const char* m = Modalidades; *m; ++m) {
            for (int i = 0; i < PorModalidade; ++i, ++n) {
                const QVariant item = insere(QStringLiteral("ITEM_NFS"),
                                             com(de("ID_NFS", nfs), "IND_MOD_INTERNACAO", QString(QLatin1Char(*m))), n);
                const QVariantMap doItem = de("ID_ITEM", item);
                if (*m == '4')
                    insere(QStringLiteral("ITEM_NFS_100"), doItem, n);
                if (*m == '2') {
                    for (const char* t : {"ITEM_NFS_PI_COM_PPB", "DCRE", "DCR"})
                        insere(QString::fromLatin1(t), doItem, n);
                }
                if (*m == '1') {
                    for (const char* t : {"ITEM_NFS_PE", "JUST_DIF_ALIQ_PROD_VRT_IND", "ITEM_NFA_PE_IND"})
                        insere(QString::fromLatin1(t), doItem, n);
                    for (int k = 0; k < 2; ++k)
                        insere(QStringLiteral("ITEM_IMPORT_288_PE"),
                               de("ID_ITEM_DI", insere(QStringLiteral("ITEM_DI_PE_IND"), doItem, n + k)), n + k);
                    insere(QStringLiteral("ITEM_DSI_PE_IND"), doItem, n);
                }
                if (*m != '3')
                    continue;
                insere(QStringLiteral("ITEM_NFS_PI_SEM_PPB"), doItem, n);
                for (int k = 0; k < 2; ++k) {
                    const QString codigo = QStringLiteral("INS-%1").arg((n + k) % 9);
                    const QVariantMap doInsumo = de("ID_INSUMO", insere(QStringLiteral("INSUMO_ITEM_NFS"),
                                                                         com(com(doItem, "CD_INT_INSUMO", codigo), "NR_ORDEM", k + 1), n + k));
                    for (const char* t : {"JUST_DIF_ALIQ_INS_VRT_IND", "ITEM_NFA_INS_IND", "ITEM_DSI_INS_IND"})
                        insere(QString::fromLatin1(t), doInsumo, n + k);
                    insere(QStringLiteral("ITEM_IMPORT_288_INS"),
                           de("ID_ITEM_DI", insere(QStringLiteral("ITEM_DI_INS_IND"), doInsumo, n + k)), n + k);
                    if (!insumos.contains(codigo)) {
                        insumos.insert(codigo);
                        insere(QStringLiteral("INSUMO_VRT_IND"), com(de("ID_VRT_MICRO", ORIGEM), "CD_INT_INSUMO", codigo), n + k);
                    }
                }
            }
        }
    }
}

// A table of a declaration's tree: the column that names its parent and the parent's table (empty: the
// declaration itself).
struct Ramo {
    const char* tabela;
    const char* pai;
    const char* tabelaPai;
};

using Linhas = QHash<QString, QList<QStringList>>;

// Every row of every table of the tree under `id`, keys aside, in the order the rows were made.
Linhas daDeclaracao(const QString& id, const QList<Ramo>& arvore)
{
    Linhas r;
    QHash<QString, QHash<qint64, int>> lugares;  // per keyed table: key -> place among its rows under `id`
    for (const Ramo& ramo : arvore) {
        const QString tabela = QString::fromLatin1(ramo.tabela);
        const QString pai = QString::fromLatin1(ramo.pai);
        const QString tabelaPai = QString::fromLatin1(ramo.tabelaPai);
        QString sql = QStringLiteral("SELECT * FROM %1 WHERE %2 ").arg(tabela, pai);
        QVariantList valores;
        if (tabelaPai.isEmpty()) {
            sql += QStringLiteral("= ?");
            valores << id;
        } else {
            QStringList chaves;
            for (auto it = lugares[tabelaPai].cbegin(); it != lugares[tabelaPai].cend(); ++it)
                chaves << QString::number(it.key());
            sql += QStringLiteral("IN (%1)").arg(chaves.join(QLatin1Char(',')));
        }
        QSqlQuery q(modBancoDados::ConexaoBanco());
        q.prepare(sql + QStringLiteral(" ORDER BY rowid"));
        for (int i = 0; i < valores.size(); ++i)
            q.bindValue(i, valores.at(i));
        if (!q.exec())
            qFatal("%s", qPrintable(sql));
        const QString proprio = contador(tabela);
        const QSqlRecord rec = q.record();
        QList<QStringList>& linhas = r[tabela];
        while (q.next()) {
            QStringList l;
            for (int c = 0; c < rec.count(); ++c) {
                const QString nome = rec.fieldName(c);
                if (nome == pai && !tabelaPai.isEmpty())
                    l << QStringLiteral("pai #%1").arg(lugares[tabelaPai].value(q.value(c).toLongLong()));
                else if (nome != proprio && nome != QLatin1String("ID_VRT_MICRO"))
                    l << (q.value(c).isNull() ? QStringLiteral("<nulo>") : q.value(c).toString());
            }
            if (!proprio.isEmpty() && proprio != pai)
                lugares[tabela].insert(q.value(proprio).toLongLong(), int(lugares[tabela].size()));
            else if (proprio == pai)
                lugares[tabela].insert(q.value(proprio).toLongLong(), lugares[tabelaPai].value(q.value(proprio).toLongLong()));
            linhas << l;
        }
    }
    return r;
}

const QList<Ramo> ArvoreMensal = {
    {"VALORES_DIVER_RETIF", "ID_VRT_MICRO", ""}, {"VALORES_DIVER_MANDADO", "ID_VRT_MICRO", ""},
    {"VRT_MENSAL", "ID_VRT_MICRO", ""}, {"NCM_VRT", "ID_VRT_MICRO", ""}, {"INSUMO_VRT", "ID_VRT_MICRO", ""},
    {"ITEM_VRT_MEN", "ID_VRT_MICRO", ""}, {"ITEM_VRT_MEN_PI_COM_PPB", "ID_ITEM_VRT", "ITEM_VRT_MEN"},
    {"JUST_DIF_ALIQ_PROD_VRT_MEN", "ID_ITEM_VRT", "ITEM_VRT_MEN"}, {"DESTINO_ITEM_VRT_MEN", "ID_ITEM_VRT", "ITEM_VRT_MEN"},
    {"ITEM_DI_PE_MEN", "ID_DEST_PRODUTO", "DESTINO_ITEM_VRT_MEN"}, {"ITEM_IMPORT_288_PE_MEN", "ID_ITEM_DI", "ITEM_DI_PE_MEN"},
    {"ITEM_DSI_PE_MEN", "ID_DEST_PRODUTO", "DESTINO_ITEM_VRT_MEN"}, {"ITEM_NFA_PE_MEN", "ID_DEST_PRODUTO", "DESTINO_ITEM_VRT_MEN"},
    {"INSUMO_ITEM_VRT_MEN", "ID_ITEM_VRT", "ITEM_VRT_MEN"}, {"JUST_DIF_ALIQ_INS_VRT_MEN", "ID_INSUMO_ITEM", "INSUMO_ITEM_VRT_MEN"},
    {"ITEM_DI_INS_MEN", "ID_VRT_MICRO", ""}, {"ITEM_IMPORT_288_INS_MEN", "ID_ITEM_DI", "ITEM_DI_INS_MEN"},
    {"ITEM_DSI_INS_MEN", "ID_VRT_MICRO", ""}, {"ITEM_NFA_INS_MEN", "ID_VRT_MICRO", ""},
};

const QList<Ramo> ArvoreIndividual = {
    {"VALORES_DIVER_RETIF", "ID_VRT_MICRO", ""}, {"VALORES_DIVER_MANDADO", "ID_VRT_MICRO", ""},
    {"VRT_INDIVIDUAL", "ID_VRT_MICRO", ""}, {"NOTA_FISCAL_SAIDA", "ID_VRT_MICRO", ""},
    {"ITEM_NFS", "ID_NFS", "NOTA_FISCAL_SAIDA"}, {"ITEM_NFS_100", "ID_ITEM", "ITEM_NFS"},
    {"ITEM_NFS_PI_COM_PPB", "ID_ITEM", "ITEM_NFS"}, {"DCRE", "ID_ITEM", "ITEM_NFS"}, {"DCR", "ID_ITEM", "ITEM_NFS"},
    {"ITEM_NFS_PE", "ID_ITEM", "ITEM_NFS"}, {"JUST_DIF_ALIQ_PROD_VRT_IND", "ID_ITEM", "ITEM_NFS"},
    {"ITEM_NFA_PE_IND", "ID_ITEM", "ITEM_NFS"}, {"ITEM_DI_PE_IND", "ID_ITEM", "ITEM_NFS"},
    {"ITEM_IMPORT_288_PE", "ID_ITEM_DI", "ITEM_DI_PE_IND"}, {"ITEM_DSI_PE_IND", "ID_ITEM", "ITEM_NFS"},
    {"ITEM_NFS_PI_SEM_PPB", "ID_ITEM", "ITEM_NFS"}, {"INSUMO_ITEM_NFS", "ID_ITEM", "ITEM_NFS"},
    {"JUST_DIF_ALIQ_INS_VRT_IND", "ID_INSUMO", "INSUMO_ITEM_NFS"}, {"ITEM_NFA_INS_IND", "ID_INSUMO", "INSUMO_ITEM_NFS"},
    {"ITEM_DI_INS_IND", "ID_INSUMO", "INSUMO_ITEM_NFS"}, {"ITEM_IMPORT_288_INS", "ID_ITEM_DI", "ITEM_DI_INS_IND"},
    {"ITEM_DSI_INS_IND", "ID_INSUMO", "INSUMO_ITEM_NFS"},
};

// The tables compared one to one, each with rows in the source.
void comparaTabelas(const Linhas& origem, const Linhas& copia, const QList<Ramo>& arvore)
{
    for (const Ramo& ramo : arvore) {
        const QString t = QString::fromLatin1(ramo.tabela);
        QVERIFY2(!origem.value(t).isEmpty(), qPrintable(t + QStringLiteral(" sem linhas na origem")));
        QCOMPARE(copia.value(t).size(), origem.value(t).size());
        for (int i = 0; i < origem.value(t).size(); ++i)
            QVERIFY2(copia.value(t).at(i) == origem.value(t).at(i),
                     qPrintable(QStringLiteral("%1, linha %2: %3 / %4")
                                    .arg(t)
                                    .arg(i + 1)
                                    .arg(copia.value(t).at(i).join(u'|'), origem.value(t).at(i).join(u'|'))));
    }
}

}  // namespace

class tst_copiaLinhaALinha : public QObject {
    Q_OBJECT
private slots:
    void mensalDeTodasAsModalidades()
    {
        BancoTeste banco;
        {
            modBancoDados::Transacao t;
            mensal();
            t.confirma();
        }
        MensagensRoteiro msgs;
        msgs.responde(Msg::OK);
        CopiaVrt::ExecutaCopiaVrtMensal({ORIGEM, NOVA, QStringLiteral("0912345670"), CopiaVrt::Tipo::Retificadora});
        comparaTabelas(daDeclaracao(ORIGEM, ArvoreMensal), daDeclaracao(NOVA, ArvoreMensal), ArvoreMensal);
    }

    // The totals of the inputs go to the monthly side's table (as the system stands): the copy's INSUMO_VRT holds
    // the source's INSUMO_VRT_IND, row for row.
    void individualDeTodasAsModalidades()
    {
        BancoTeste banco;
        {
            modBancoDados::Transacao t;
            individual();
            t.confirma();
        }
        MensagensRoteiro msgs;
        msgs.responde(Msg::OK);
        CopiaVrt::ExecutaCopiaVrtIndividual({ORIGEM, NOVA, QStringLiteral("0912345670"), CopiaVrt::Tipo::Retificadora});
        comparaTabelas(daDeclaracao(ORIGEM, ArvoreIndividual), daDeclaracao(NOVA, ArvoreIndividual), ArvoreIndividual);
        const QList<Ramo> totais = {{"INSUMO_VRT_IND", "ID_VRT_MICRO", ""}};
        const QList<Ramo> totaisDaCopia = {{"INSUMO_VRT", "ID_VRT_MICRO", ""}};
        const auto origem = daDeclaracao(ORIGEM, totais).value(QStringLiteral("INSUMO_VRT_IND"));
        QVERIFY(!origem.isEmpty());
        QCOMPARE(daDeclaracao(NOVA, totaisDaCopia).value(QStringLiteral("INSUMO_VRT")), origem);
    }
};

QTEST_GUILESS_MAIN(tst_copiaLinhaALinha)
#include "tst_copiaLinhaALinha.moc"
