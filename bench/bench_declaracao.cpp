// Times the declaration file on a monthly declaration of more than 100,000 records (all four modalities,
// several destinations, entry documents): writing it, checking it with `vrt-cli verificar`, and reading it back
// into an empty database; beside it, in the same run, the sqlite3 shell bulk-loading as many rows from CSV.
// Prints records per second, the ratios to the bulk load, and peak memory. Never fails on time.
#include "core/file/writing/GravaVrt.h"
#include "core/file/reading/LeArquivoVrt.h"
#include "core/session/MsgBox.h"
#include "core/session/modVRTPLN.h"
#include "core/store/modBancoDados.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QSqlQuery>
#include <QTemporaryDir>
#include <QTextStream>
#include <cstdio>
#include <sys/resource.h>

namespace {

using namespace modBancoDados;

const QString Id = QStringLiteral("00001/26");
// Items per modality: 6,000 foreign products (2 destinations, 5 documents each: 10 records), 5,000 with basic
// process (2 destinations: 2 records), 1,000 without (2 inputs at 2 destinations: 19 records), 12,000 national.
const int ItensPE = 6000, ItensPPB = 5000, ItensSemPPB = 1000, ItensNacionais = 12000;

QString q(int n, int casas = 5)
{
    return QString::number(n) + QLatin1Char(',') + QString(casas, QLatin1Char('0'));
}

void exec(QSqlQuery& s, const QVariantList& v)
{
    for (int i = 0; i < v.size(); ++i)
        s.bindValue(i, v.at(i));
    if (!s.exec())
        BDTrataErro(s.lastError());
}

QSqlQuery prepara(const QString& sql)
{
    QSqlQuery s(ConexaoBanco());
    if (!s.prepare(sql))
        BDTrataErro(s.lastError());
    return s;
}

void ncm()
{
    ExecutaSql(QStringLiteral("INSERT INTO NCM_ITEM (CD_NCM_PRODUTO, DESCR_NCM_PRODUTO, NM_UNID_MED_EST) VALUES "
                              "('84713012', 'Máquinas portáteis', 'UN'), ('39269090', 'Obras de plástico', 'KG')"));
}

// The declaration, row by row, straight into the tables.
void monta()
{
    Transacao t;
    ncm();
    ExecutaSql(QStringLiteral("INSERT INTO VRT (ID_VRT_MICRO, CD_TIPO_VRT, NR_CNPJ_INTERNADOR, IND_MANDADO_JUDIC, NR_VRT, "
                              "NR_PROC_ADM_FISCAL, IND_RESTITUICAO, IND_RETIFICACAO) VALUES "
                              "(?, '2', '12345678000195', 'N', ' ', ' ', 'N', 'N')"),
               {Id});
    ExecutaSql(QStringLiteral("INSERT INTO VRT_MENSAL (ID_VRT_MICRO, DT_REFERENCIA_VRT) VALUES (?, '122008')"), {Id});
    QSqlQuery item = prepara(QStringLiteral(
        "INSERT INTO ITEM_VRT_MEN (ID_VRT_MICRO, CD_INT_PRODUTO, NM_INT_PRODUTO, CD_NCM_PRODUTO, NM_UNID_MED_PROD, "
        "IND_MOD_INTERNACAO, QT_PROD_UNID_EST, QT_PROD_UNID_PROD, VL_PROD_UNID_PROD) VALUES (?, ?, ?, ?, ?, ?, ?, ?, ?)"));
    QSqlQuery destino = prepara(QStringLiteral(
        "INSERT INTO DESTINO_ITEM_VRT_MEN (ID_ITEM_VRT, CD_LOCAL_DESTINO, QT_PROD_LOC_DEST, VL_II_UNIT_DOLAR, "
        "PC_COEF_REDUCAO_II, NM_UNID_MED_DEST, VL_PIS, VL_COFINS) VALUES (?, ?, ?, ?, ?, ?, ?, ?)"));
    QSqlQuery ppb = prepara(QStringLiteral(
        "INSERT INTO ITEM_VRT_MEN_PI_COM_PPB (ID_ITEM_VRT, NR_DCRE_DCR, CD_TIPO_COEF_REDUCAO) VALUES (?, ?, '2')"));
    QSqlQuery nfa = prepara(QStringLiteral(
        "INSERT INTO ITEM_NFA_PE_MEN (ID_DEST_PRODUTO, NR_NF_AQUIS, NR_SERIE_NF_AQUIS, NR_ITEM_NF_AQUIS, "
        "DT_EMISS_NF_AQUIS, CD_CFOP_NF_AQUIS, NR_CNPJ_FORNECEDOR, IND_DL_288_67, IND_OBSOLE_RESIDUO, "
        "QT_PROD_UNID_PROD, VL_PROD_UNID_PROD) VALUES (?, ?, 'A', '001', '05112008', '102', '11222333000181', 'S', "
        "'N', ?, ?)"));
    QSqlQuery di = prepara(QStringLiteral(
        "INSERT INTO ITEM_DI_PE_MEN (ID_DEST_PRODUTO, NR_DI, NR_DI_ANTIGA, NR_ADICAO_DI, NR_ITEM_ADICAO, "
        "IND_DL_288_67, IND_OBSOLE_RESIDUO, QT_PROD_UNID_PROD, IND_SUSP_PIS_COFINS) VALUES (?, ?, '', '001', '01', "
        "'S', 'N', ?, 'N')"));
    QSqlQuery di288 = prepara(QStringLiteral(
        "INSERT INTO ITEM_IMPORT_288_PE_MEN (ID_ITEM_DI, CD_MOEDA_NEG, VL_PROD_UNID_PROD, CD_MOEDA_FRETE, "
        "VL_FRETE_UNID_INT, CD_MOEDA_SEGURO, VL_SEGURO_UNID_INT) VALUES (?, '220', ?, '220', '0,5000000', '220', "
        "'0,1000000')"));
    QSqlQuery dsi = prepara(QStringLiteral(
        "INSERT INTO ITEM_DSI_PE_MEN (ID_DEST_PRODUTO, NR_DSI, NR_DSI_ANTIGA, NR_BEM, QT_PROD_UNID_PROD, "
        "IND_SUSP_PIS_COFINS) VALUES (?, ?, '', '003', ?, 'N')"));
    QSqlQuery insumo = prepara(QStringLiteral(
        "INSERT INTO INSUMO_ITEM_VRT_MEN (ID_ITEM_VRT, NR_ORDEM, CD_INT_INSUMO, NM_INT_INSUMO, CD_NCM_INSUMO, "
        "QT_INSUMO_POR_PROD, NM_UNID_MED_INSUMO) VALUES (?, ?, ?, ?, '39269090', '2,00000', 'KG')"));
    QSqlQuery nfaIns = prepara(QStringLiteral(
        "INSERT INTO ITEM_NFA_INS_MEN (ID_VRT_MICRO, ID_INSUMO_ITEM, CD_INT_INSUMO, CD_LOCAL_DESTINO, NR_NF_AQUIS, "
        "NR_SERIE_NF_AQUIS, NR_ITEM_NF_AQUIS, DT_EMISS_NF_AQUIS, CD_CFOP_NF_AQUIS, NR_CNPJ_FORNECEDOR, IND_DL_288_67, "
        "QT_INSUMO_UNID_INS, VL_INSUMO_UNID_INS) VALUES (?, ?, ?, ?, '000456', 'B', '002', '20112008', '102', "
        "'11222333000181', 'S', '5,00000', '1,2345670')"));
    QSqlQuery diIns = prepara(QStringLiteral(
        "INSERT INTO ITEM_DI_INS_MEN (ID_VRT_MICRO, CD_INT_INSUMO, NM_INT_INSUMO, CD_LOCAL_DESTINO, ID_INSUMO_ITEM, "
        "NR_DI, NR_DI_ANTIGA, NR_ADICAO_DI, NR_ITEM_ADICAO, IND_DL_288_67, QT_INSUMO_UNID_INS, IND_SUSP_PIS_COFINS) "
        "VALUES (?, ?, ?, ?, ?, '0811111111', '', '004', '01', 'S', '4,00000', 'N')"));
    QSqlQuery diIns288 = prepara(QStringLiteral(
        "INSERT INTO ITEM_IMPORT_288_INS_MEN (ID_ITEM_DI, CD_MOEDA_NEG, VL_INSUMO_UNID_INS) VALUES (?, '220', '9,9000000')"));
    QSqlQuery dsiIns = prepara(QStringLiteral(
        "INSERT INTO ITEM_DSI_INS_MEN (ID_VRT_MICRO, ID_INSUMO_ITEM, CD_INT_INSUMO, CD_LOCAL_DESTINO, NR_DSI, "
        "NR_DSI_ANTIGA, NR_BEM, QT_INSUMO_UNID_INS, IND_SUSP_PIS_COFINS) VALUES (?, ?, ?, ?, '0722222222', '', '005', "
        "'0,30000', 'N')"));

    int codigo = 0;
    const auto novoItem = [&](const QString& modalidade) {
        const QString cd = QStringLiteral("P%1").arg(++codigo);
        exec(item, {Id, cd, QStringLiteral("Produto %1 de teste").arg(codigo), QStringLiteral("84713012"),
                    QStringLiteral("UN"), modalidade, q(2), q(7), QStringLiteral("12,50")});
        return item.lastInsertId();
    };
    const auto novoDestino = [&](const QVariant& it, int local) {
        exec(destino, {it, QString::number(local), q(3), QStringLiteral("0,3500000"), QStringLiteral("88,00"),
                       QStringLiteral("PC"), QStringLiteral("0,1650000"), QStringLiteral("0,7600000")});
        return destino.lastInsertId();
    };
    for (int i = 0; i < ItensPE; ++i) {
        const QVariant it = novoItem(QStringLiteral("1"));
        for (int local : {1, 3}) {
            const QVariant d = novoDestino(it, local);
            exec(nfa, {d, QStringLiteral("%1").arg(i % 999999, 6, 10, QLatin1Char('0')), q(1), q(2, 7)});
            for (int k = 0; k < 2; ++k) {
                exec(di, {d, QStringLiteral("08%1").arg(i * 2 + k, 8, 10, QLatin1Char('0')), q(1)});
                exec(di288, {di.lastInsertId(), QStringLiteral("1,2500000")});
            }
            exec(dsi, {d, QStringLiteral("07%1").arg(i, 8, 10, QLatin1Char('0')), q(1)});
        }
    }
    for (int i = 0; i < ItensPPB; ++i) {
        const QVariant it = novoItem(QStringLiteral("2"));
        exec(ppb, {it, QString::number(10000 + i)});
        novoDestino(it, 1);
        novoDestino(it, 2);
    }
    for (int i = 0; i < ItensSemPPB; ++i) {
        const QVariant it = novoItem(QStringLiteral("3"));
        novoDestino(it, 1);
        novoDestino(it, 4);
        for (int k = 1; k <= 2; ++k) {
            const QString cd = QStringLiteral("I%1_%2").arg(i).arg(k);
            exec(insumo, {it, k, cd, QStringLiteral("Insumo %1").arg(cd)});
            const QVariant ins = insumo.lastInsertId();
            for (int local : {1, 4}) {
                exec(nfaIns, {Id, ins, cd, QString::number(local)});
                exec(diIns, {Id, cd, QStringLiteral("Insumo %1").arg(cd), QString::number(local), ins});
                exec(diIns288, {diIns.lastInsertId()});
                exec(dsiIns, {Id, ins, cd, QString::number(local)});
            }
        }
    }
    for (int i = 0; i < ItensNacionais; ++i)
        novoItem(QStringLiteral("4"));
    t.confirma();
}

double segundos(const QElapsedTimer& r)
{
    return r.nsecsElapsed() / 1e9;
}

// The reference: the sqlite3 shell loading `linhas` CSV rows of nine columns into a new table.
double cargaSqlite(const QString& pasta, qint64 linhas)
{
    const QString csv = pasta + QStringLiteral("/carga.csv");
    QFile f(csv);
    f.open(QIODevice::WriteOnly);
    QTextStream out(&f);
    for (qint64 i = 0; i < linhas; ++i)
        out << i << ",00001/26,P" << i << ",Produto " << i << " de teste,84713012,UN,1,\"2,00000\",\"12,50\"\n";
    out.flush();
    f.close();
    QElapsedTimer r;
    r.start();
    QProcess p;
    p.start(QStringLiteral("sqlite3"),
            {pasta + QStringLiteral("/carga.db"),
             QStringLiteral("CREATE TABLE T (ID INTEGER PRIMARY KEY, ID_VRT TEXT, CD TEXT, NM TEXT, NCM TEXT, UN TEXT, "
                            "MODAL TEXT, QT TEXT, VL TEXT);"),
             QStringLiteral(".mode csv"), QStringLiteral(".import ") + csv + QStringLiteral(" T")});
    if (!p.waitForFinished(600000) || p.exitCode() != 0) {
        std::fprintf(stderr, "sqlite3 falhou: %s\n", p.readAllStandardError().constData());
        return -1;
    }
    return segundos(r);
}

qint64 contaLinhas(const QString& arquivo)
{
    QFile f(arquivo);
    f.open(QIODevice::ReadOnly);
    const QByteArray b = f.readAll();
    return b.count('\n') + (b.endsWith('\n') ? 0 : 1);
}

}  // namespace

int main(int argc, char** argv)
{
    QCoreApplication app(argc, argv);
    InstalaManipuladorMsg([](const QString&, int estilo, const QString&) { return RespostaPadrao(estilo); });
    QTemporaryDir dir;
    const QString pasta = dir.path();
    const auto copiaBanco = [&](const QString& nome) {
        const QString arquivo = pasta + QLatin1Char('/') + nome;
        QFile::copy(QStringLiteral(VRT_DELIVERED_DB), arquivo);
        QFile(arquivo).setPermissions(QFile::ReadOwner | QFile::WriteOwner);
        return arquivo;
    };
    modVRTPLN::CaminhoAplicacao = pasta;
    modVRTPLN::CaminhoDados = pasta;

    ConectaBanco(copiaBanco(QStringLiteral("origem.mdb")));
    QElapsedTimer r;
    r.start();
    monta();
    std::printf("declaração montada no banco em %.2f s\n", segundos(r));

    r.restart();
    const ResultadoGravacao g = GravaVrt({Id}, pasta, ModoGravacao::Backup);
    const double tGravar = segundos(r);
    if (g.arquivos.isEmpty() || g.erroGravacao) {
        std::fprintf(stderr, "a gravação falhou\n");
        return 1;
    }
    const QString arquivo = g.arquivos.first();
    const qint64 registros = contaLinhas(arquivo);
    DesconectaBanco();

    r.restart();
    QProcess verificar;
    verificar.start(QStringLiteral(VRT_BINARY_DIR "/vrt-cli"), {QStringLiteral("verificar"), arquivo});
    verificar.waitForFinished(600000);
    const double tVerificar = segundos(r);
    const QByteArray saidaVerificar = verificar.readAllStandardOutput().trimmed();

    ConectaBanco(copiaBanco(QStringLiteral("destino.mdb")));
    ncm();
    r.restart();
    LeArquivoVrt leitura(pasta, QFileInfo(arquivo).fileName(), ModoLeitura::Restaurar);
    const bool lida = leitura.executa();
    const double tLer = segundos(r);
    // Rows the reading made, in every table but the reference ones: the file's records unfold into more rows.
    qint64 linhasCriadas = 0;
    {
        QSqlQuery tabelas(ConexaoBanco());
        tabelas.exec(QStringLiteral("SELECT name FROM sqlite_master WHERE type = 'table' AND name NOT LIKE 'sqlite_%' "
                                    "AND name NOT IN ('MOEDA', 'NCM_ITEM', 'UNIDADE_FEDERATIVA', 'UNIDADE_MEDIDA', "
                                    "'LOCAL_DESTINO', 'OPERACAO_FISCAL', 'ARQUIVO_NUMERADOR')"));
        QStringList nomes;
        while (tabelas.next())
            nomes << tabelas.value(0).toString();
        for (const QString& t : nomes)
            linhasCriadas += ValorUnico(QStringLiteral("SELECT COUNT(*) FROM ") + t).toLongLong();
    }
    DesconectaBanco();

    const double tCarga = cargaSqlite(pasta, registros);
    rusage uso{};
    getrusage(RUSAGE_SELF, &uso);
    rusage filhos{};
    getrusage(RUSAGE_CHILDREN, &filhos);

    std::printf("registros no arquivo: %lld (%.1f MB)\n", static_cast<long long>(registros),
                QFileInfo(arquivo).size() / 1e6);
    std::printf("%-34s %8.2f s  %10.0f registros/s  %5.2fx a carga\n", "gravar (GravaVrt)", tGravar,
                registros / tGravar, tGravar / tCarga);
    std::printf("%-34s %8.2f s  %10.0f registros/s  %5.2fx a carga  [%s, saída %d]\n", "verificar (vrt-cli)", tVerificar,
                registros / tVerificar, tVerificar / tCarga, saidaVerificar.constData(), verificar.exitCode());
    std::printf("%-34s %8.2f s  %10.0f registros/s  %5.2fx a carga  [%s]\n", "ler num banco vazio (LeArquivoVrt)",
                tLer, registros / tLer, tLer / tCarga, lida ? "concluída" : "FALHOU");
    std::printf("%-34s %8.2f s  %10.0f linhas/s\n", "sqlite3 .import do mesmo número", tCarga, registros / tCarga);
    std::printf("linhas criadas pela leitura: %lld (a carga do sqlite3: %lld, numa tabela sem restrições)\n",
                static_cast<long long>(linhasCriadas), static_cast<long long>(registros));
    std::printf("memória de pico: %.1f MB (este processo), %.1f MB (maior processo filho)\n", uso.ru_maxrss / 1024.0,
                filhos.ru_maxrss / 1024.0);
    return lida ? 0 : 1;
}
