// Times the copy of a declaration of 10,000 items, monthly and individual, as "Retificadora" (every table goes)
// and as "Original". The items mix the four modalities, with destinations, documents of Decreto-Lei 288/67 and
// inputs, so that every kind of statement of the copy runs thousands of times. Prints seconds and rows per
// second; never fails on time.
#include "core/copy/CopiaVrt.h"
#include "core/session/MsgBox.h"
#include "core/session/modVRTPLN.h"
#include "core/store/modBancoDados.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QSqlQuery>
#include <QTemporaryDir>
#include <cstdio>

namespace {

using namespace modBancoDados;

const int Itens = 10000;

QVariant insere(const QString& sql, const QVariantList& valores, const char* contador = nullptr,
                const char* tabela = nullptr)
{
    ExecutaSql(sql, valores);
    if (!contador)
        return QVariant();
    return ValorUnico(QStringLiteral("SELECT max(%1) FROM %2").arg(QLatin1String(contador), QLatin1String(tabela)));
}

void cabeca(const QString& id, const char* tipo)
{
    ExecutaSql(QStringLiteral("INSERT INTO VRT (ID_VRT_MICRO, CD_TIPO_VRT, NR_CNPJ_INTERNADOR, NR_VRT, IND_RETIFICACAO) "
                              "VALUES (?, ?, '12345678000195', ' ', 'N')"),
               {id, QString::fromLatin1(tipo)});
    ExecutaSql(QStringLiteral("INSERT INTO VALORES_DIVER_RETIF (ID_VRT_MICRO, CD_MOD_RETIF, CD_TIPO_DIVER_RETIF, "
                              "VL_TOTAL_DIVER_RETIF) VALUES (?, '1', '3', '10,00')"),
               {id});
}

// Modality by item number: 1, 2, 3, 4 in turn.
char modalidade(int i)
{
    return "1234"[i % 4];
}

void mensal(const QString& id)
{
    cabeca(id, "2");
    ExecutaSql(QStringLiteral("INSERT INTO VRT_MENSAL (ID_VRT_MICRO, DT_REFERENCIA_VRT) VALUES (?, '122008')"), {id});
    for (int i = 0; i < Itens; ++i) {
        const QString m(QLatin1Char(modalidade(i)));
        const QVariant item = insere(QStringLiteral("INSERT INTO ITEM_VRT_MEN (ID_VRT_MICRO, CD_INT_PRODUTO, "
                                                    "CD_NCM_PRODUTO, IND_MOD_INTERNACAO, QT_PROD_UNID_EST) "
                                                    "VALUES (?, ?, '84713012', ?, '2,00000')"),
                                     {id, QStringLiteral("P%1").arg(i), m}, "ID_ITEM_VRT", "ITEM_VRT_MEN");
        if (m == QLatin1String("4"))
            continue;
        if (m == QLatin1String("2"))
            ExecutaSql(QStringLiteral("INSERT INTO ITEM_VRT_MEN_PI_COM_PPB (ID_ITEM_VRT, NR_DCRE_DCR) VALUES (?, '1')"),
                       {item});
        for (const char* local : {"1", "2"}) {
            const QVariant destino = insere(QStringLiteral("INSERT INTO DESTINO_ITEM_VRT_MEN (ID_ITEM_VRT, "
                                                           "CD_LOCAL_DESTINO, QT_PROD_LOC_DEST) VALUES (?, ?, '1,00000')"),
                                            {item, QString::fromLatin1(local)}, "ID_DEST_PRODUTO", "DESTINO_ITEM_VRT_MEN");
            if (m != QLatin1String("1"))
                continue;
            const QVariant di = insere(QStringLiteral("INSERT INTO ITEM_DI_PE_MEN (ID_DEST_PRODUTO, NR_DI, "
                                                      "IND_DL_288_67) VALUES (?, '0812345678', 'S')"),
                                       {destino}, "ID_ITEM_DI", "ITEM_DI_PE_MEN");
            ExecutaSql(QStringLiteral("INSERT INTO ITEM_IMPORT_288_PE_MEN (ID_ITEM_DI, CD_MOEDA_NEG) VALUES (?, '220')"),
                       {di});
            ExecutaSql(QStringLiteral("INSERT INTO ITEM_NFA_PE_MEN (ID_DEST_PRODUTO, NR_NF_AQUIS) VALUES (?, '1')"),
                       {destino});
        }
        if (m == QLatin1String("3")) {
            for (int n = 1; n <= 2; ++n)
                ExecutaSql(QStringLiteral("INSERT INTO INSUMO_ITEM_VRT_MEN (NR_ORDEM, ID_ITEM_VRT, CD_INT_INSUMO) "
                                          "VALUES (?, ?, ?)"),
                           {n, item, QStringLiteral("I%1").arg(n)});
        }
    }
    ExecutaSql(QStringLiteral("INSERT INTO INSUMO_VRT (ID_VRT_MICRO, CD_INT_INSUMO, QT_TOT_INS_EST) VALUES "
                              "(?, 'I1', '1,00000'), (?, 'I2', '1,00000')"),
               {id, id});
}

void individual(const QString& id)
{
    cabeca(id, "1");
    ExecutaSql(QStringLiteral("INSERT INTO VRT_INDIVIDUAL (ID_VRT_MICRO, IN_SAIDA_ALC_AO) VALUES (?, 'N')"), {id});
    const QVariant nfs = insere(QStringLiteral("INSERT INTO NOTA_FISCAL_SAIDA (ID_VRT_MICRO, NR_NF_SAIDA) VALUES (?, '1')"),
                                {id}, "ID_NFS", "NOTA_FISCAL_SAIDA");
    for (int i = 0; i < Itens; ++i) {
        const QString m(QLatin1Char(modalidade(i)));
        const QVariant item = insere(QStringLiteral("INSERT INTO ITEM_NFS (ID_NFS, NR_ITEM_NF_SAIDA, CD_INT_PROD, "
                                                    "IND_MOD_INTERNACAO) VALUES (?, ?, ?, ?)"),
                                     {nfs, i % 1000, QStringLiteral("P%1").arg(i), m}, "ID_ITEM", "ITEM_NFS");
        const char* tabela = m == QLatin1String("4")   ? "ITEM_NFS_100"
                             : m == QLatin1String("2") ? "ITEM_NFS_PI_COM_PPB"
                             : m == QLatin1String("1") ? "ITEM_NFS_PE"
                                                       : "ITEM_NFS_PI_SEM_PPB";
        ExecutaSql(QStringLiteral("INSERT INTO %1 (ID_ITEM) VALUES (?)").arg(QLatin1String(tabela)), {item});
        if (m == QLatin1String("1")) {
            const QVariant di = insere(QStringLiteral("INSERT INTO ITEM_DI_PE_IND (ID_ITEM, NR_DI) VALUES (?, '1')"),
                                       {item}, "ID_ITEM_DI", "ITEM_DI_PE_IND");
            ExecutaSql(QStringLiteral("INSERT INTO ITEM_IMPORT_288_PE (ID_ITEM_DI, CD_MOEDA_NEG) VALUES (?, '220')"), {di});
        } else if (m == QLatin1String("3")) {
            const QVariant ins = insere(QStringLiteral("INSERT INTO INSUMO_ITEM_NFS (NR_ORDEM, ID_ITEM, CD_INT_INSUMO) "
                                                       "VALUES (1, ?, 'I1')"),
                                        {item}, "ID_INSUMO", "INSUMO_ITEM_NFS");
            ExecutaSql(QStringLiteral("INSERT INTO ITEM_NFA_INS_IND (ID_INSUMO, NR_NF_AQUIS) VALUES (?, '1')"), {ins});
        }
    }
}

qint64 linhas()
{
    qint64 total = 0;
    QSqlQuery q(ConexaoBanco());
    AbreConsulta(q, QStringLiteral("SELECT name FROM sqlite_master WHERE type = 'table' AND name NOT LIKE 'sqlite%'"));
    QStringList tabelas;
    while (q.next())
        tabelas << q.value(0).toString();
    q.finish();
    for (const QString& t : tabelas)
        total += ValorUnico(QStringLiteral("SELECT count(*) FROM ") + t).toLongLong();
    return total;
}

void mede(const char* nome, bool ehMensal, const QString& origem, const QString& nova, CopiaVrt::Tipo tipo)
{
    const qint64 antes = linhas();
    QElapsedTimer r;
    r.start();
    const CopiaVrt::Pedido pedido{origem, nova, QStringLiteral("0912345670"), tipo};
    // Where the time goes: the seconds at each advance of the progress.
    QStringList etapas;
    CopiaVrt::Acompanhamento a;
    a.progresso = [&](int v) { etapas << QStringLiteral("%1%: %2 s").arg(v).arg(r.nsecsElapsed() / 1e9, 0, 'f', 3); };
    if (ehMensal)
        CopiaVrt::ExecutaCopiaVrtMensal(pedido, a);
    else
        CopiaVrt::ExecutaCopiaVrtIndividual(pedido, a);
    const double s = r.nsecsElapsed() / 1e9;
    const qint64 novas = linhas() - antes;
    std::printf("%-34s %7.3f s  %8lld linhas  %9.0f linhas/s\n", nome, s, static_cast<long long>(novas), novas / s);
    std::printf("    %s\n", etapas.join(QStringLiteral(", ")).toUtf8().constData());
}

}  // namespace

int main(int argc, char** argv)
{
    QCoreApplication app(argc, argv);
    InstalaManipuladorMsg([](const QString&, int estilo, const QString&) { return RespostaPadrao(estilo); });
    QTemporaryDir dir;
    const QString arquivo = dir.filePath(modVRTPLN::NomeArquivoBanco);
    QFile::copy(QStringLiteral(VRT_DELIVERED_DB), arquivo);
    QFile::setPermissions(arquivo, QFile::ReadOwner | QFile::WriteOwner);
    modVRTPLN::CaminhoAplicacao = dir.path();
    modVRTPLN::CaminhoDados = dir.path();
    ConectaBanco(arquivo);
    QElapsedTimer r;
    r.start();
    {
        Transacao t;
        mensal(QStringLiteral("00001/26"));
        individual(QStringLiteral("00002/26"));
        t.confirma();
    }
    std::printf("declarações de %d itens montadas em %.2f s\n", Itens, r.nsecsElapsed() / 1e9);
    mede("mensal como Retificadora", true, QStringLiteral("00001/26"), QStringLiteral("00003/26"),
         CopiaVrt::Tipo::Retificadora);
    mede("mensal como Original", true, QStringLiteral("00001/26"), QStringLiteral("00004/26"),
         CopiaVrt::Tipo::Original);
    mede("individual como Retificadora", false, QStringLiteral("00002/26"), QStringLiteral("00005/26"),
         CopiaVrt::Tipo::Retificadora);
    mede("individual como Original", false, QStringLiteral("00002/26"), QStringLiteral("00006/26"),
         CopiaVrt::Tipo::Original);
    return 0;
}
