// Times the declaration file on a monthly declaration of more than 100,000 records (all four modalities,
// several destinations, entry documents): writing it, checking it with `vrt-cli verificar`, and reading it back
// into an empty database. Beside it, in the same run, the floors:
//  - the same-schema load: exactly the rows the reading created, taken from the read database into memory, then
//    inserted through one prepared statement per table (SQLite's own interface, values bound as the engine gave
//    them) into a copy of the database as it was before the reading (same schema, foreign keys on, indexes), in
//    one transaction: what putting these rows into this schema costs at the least;
//  - the same load by the sqlite3 shell from files of INSERTs (each statement parsed), as the earlier figures had;
//  - the export: every row of the declaration's tables written out as CSV by the sqlite3 shell from the database
//    the writer read;
//  - the old bare load: as many CSV rows as the file has records into one table without constraints.
// Prints wall and CPU seconds, the ratios, and peak memory. Never fails on time. An argument scales the
// declaration (1 is about 100,000 records; 0.01, 0.1, 10 for a scaling table). The writing, the export, the
// reading and the prepared load are each run three times and the best run of each is printed, as the machine is
// shared; "--so-gravacao" stops
// after them (a 1,000,000-record writing figure without the slower reading: `bench_declaracao 10 --so-gravacao`).
//
// `bench_declaracao --escalas [0.01,0.1,1,10]`: the scaling table alone, without the floors: for each scale the
// writing, `vrt-cli verificar` and the reading each run in a process of their own, so that each peak memory is
// that phase's (the writing's includes building the declaration in its database).
#include "core/file/writing/GravaVrt.h"
#include "core/file/reading/LeArquivoVrt.h"
#include "core/session/MsgBox.h"
#include "core/session/modVRTPLN.h"
#include "core/store/modBancoDados.h"

#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QSqlQuery>
#include <QTemporaryDir>
#include <QTextStream>
#include <cstdio>
#include <sqlite3.h>
#include <vector>
#include <sys/resource.h>
#include <unistd.h>

namespace {

using namespace modBancoDados;

const QString Id = QStringLiteral("00001/26");
// Items per modality: 6,000 foreign products (2 destinations, 5 documents each: 10 records), 5,000 with basic
// process (2 destinations: 2 records), 1,000 without (2 inputs at 2 destinations: 19 records), 12,000 national.
int ItensPE = 6000, ItensPPB = 5000, ItensSemPPB = 1000, ItensNacionais = 12000;

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
    ExecutaSql(QStringLiteral("INSERT OR REPLACE INTO NCM_ITEM (CD_NCM_PRODUTO, DESCR_NCM_PRODUTO, NM_UNID_MED_EST) VALUES "
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

double cpu(int quem)
{
    rusage u{};
    getrusage(quem, &u);
    return u.ru_utime.tv_sec + u.ru_stime.tv_sec + (u.ru_utime.tv_usec + u.ru_stime.tv_usec) / 1e6;
}

// Wall and CPU time (this process and its children) of one phase.
struct Medida {
    double parede = 0, cpu = 0;
};

class Cronometro {
public:
    Cronometro() { m_r.start(); m_cpu = cpu(RUSAGE_SELF) + cpu(RUSAGE_CHILDREN); }
    Medida para() const { return {segundos(m_r), cpu(RUSAGE_SELF) + cpu(RUSAGE_CHILDREN) - m_cpu}; }

private:
    QElapsedTimer m_r;
    double m_cpu = 0;
};

// The best of three runs, wall and CPU each.
template <typename Passo>
Medida melhorDe(Passo passo)
{
    Medida melhor{1e9, 1e9};
    for (int i = 0; i < 3; ++i) {
        Cronometro c;
        passo();
        const Medida m = c.para();
        melhor.parede = qMin(melhor.parede, m.parede);
        melhor.cpu = qMin(melhor.cpu, m.cpu);
    }
    return melhor;
}

// The declaration's tables: all but the reference ones.
QStringList tabelasDaDeclaracao()
{
    QSqlQuery t(ConexaoBanco());
    t.exec(QStringLiteral("SELECT name FROM sqlite_master WHERE type = 'table' AND name NOT LIKE 'sqlite_%' "
                          "AND name NOT IN ('MOEDA', 'NCM_ITEM', 'UNIDADE_FEDERATIVA', 'LOCAL_DESTINO', "
                          "'OPERACAO_FISCAL', 'ARQUIVO_NUMERADOR') ORDER BY rowid"));
    QStringList nomes;
    while (t.next())
        nomes << t.value(0).toString();
    return nomes;
}

bool shell(const QString& banco, const QString& script)
{
    QProcess p;
    p.start(QStringLiteral("sqlite3"), {QStringLiteral("-batch"), banco});
    p.write(script.toUtf8());
    p.closeWriteChannel();
    const bool terminou = p.waitForFinished(1800000);
    const QByteArray erros = p.readAllStandardError();
    if (!terminou || p.exitCode() != 0 || !erros.isEmpty()) {
        std::fprintf(stderr, "sqlite3 falhou em %s: %s\n", qPrintable(banco), erros.left(2000).constData());
        return false;
    }
    return true;
}

// The rows the reading created (in `lido` and not in `antes`), one file of INSERTs per table, in `pasta`. SQL
// rather than CSV: a CSV field cannot tell NULL from an empty text, and the schema's checks do.
QStringList despeja(const QString& lido, const QString& antes, const QStringList& tabelas, const QString& pasta)
{
    QString script = QStringLiteral(".headers off\nATTACH '%1' AS antes;\n").arg(antes);
    for (const QString& t : tabelas)
        script += QStringLiteral(".mode insert %2\n.output %1/%2.sql\n"
                                 "SELECT * FROM main.%2 EXCEPT SELECT * FROM antes.%2;\n").arg(pasta, t);
    shell(lido, script);
    QStringList comLinhas;
    for (const QString& t : tabelas) {
        if (QFileInfo(pasta + QLatin1Char('/') + t + QStringLiteral(".sql")).size() > 0)
            comLinhas << t;
    }
    return comLinhas;
}

// The same-schema load: the shell runs the INSERTs of each table, parents first, in one transaction.
Medida cargaMesmoEsquema(const QString& banco, const QStringList& tabelas, const QString& pasta)
{
    QString script = QStringLiteral("PRAGMA foreign_keys = ON;\nBEGIN;\n");
    for (const QString& t : tabelas)
        script += QStringLiteral(".read %1/%2.sql\n").arg(pasta, t);
    script += QStringLiteral("COMMIT;\n");
    Cronometro c;
    if (!shell(banco, script))
        return {-1, -1};
    return c.para();
}

// One value as the engine stored it.
struct Valor {
    int tipo = SQLITE_NULL;
    qint64 inteiro = 0;
    double real = 0;
    QByteArray bytes;
};
struct LinhasTabela {
    QString nome;
    int colunas = 0;
    std::vector<Valor> valores;  // row after row
};

sqlite3* abreBanco(const QString& banco)
{
    sqlite3* db = nullptr;
    if (sqlite3_open(QFile::encodeName(banco).constData(), &db) != SQLITE_OK)
        std::fprintf(stderr, "sqlite3_open falhou em %s\n", qPrintable(banco));
    return db;
}

void roda(sqlite3* db, const char* sql)
{
    char* erro = nullptr;
    if (sqlite3_exec(db, sql, nullptr, nullptr, &erro) != SQLITE_OK) {
        std::fprintf(stderr, "%s: %s\n", sql, erro);
        sqlite3_free(erro);
    }
}

// The rows the reading created (in `lido` and not in `antes`), table by table, parents first.
std::vector<LinhasTabela> tiraLinhasCriadas(const QString& lido, const QString& antes, const QStringList& tabelas)
{
    sqlite3* db = abreBanco(lido);
    roda(db, QStringLiteral("ATTACH '%1' AS antes").arg(antes).toUtf8().constData());
    std::vector<LinhasTabela> todas;
    for (const QString& t : tabelas) {
        LinhasTabela linhas{t, 0, {}};
        const QByteArray sql = QStringLiteral("SELECT * FROM main.%1 EXCEPT SELECT * FROM antes.%1").arg(t).toUtf8();
        sqlite3_stmt* st = nullptr;
        sqlite3_prepare_v2(db, sql.constData(), -1, &st, nullptr);
        linhas.colunas = sqlite3_column_count(st);
        while (sqlite3_step(st) == SQLITE_ROW) {
            for (int c = 0; c < linhas.colunas; ++c) {
                Valor v;
                v.tipo = sqlite3_column_type(st, c);
                if (v.tipo == SQLITE_INTEGER)
                    v.inteiro = sqlite3_column_int64(st, c);
                else if (v.tipo == SQLITE_FLOAT)
                    v.real = sqlite3_column_double(st, c);
                else if (v.tipo != SQLITE_NULL)
                    v.bytes = QByteArray(static_cast<const char*>(sqlite3_column_blob(st, c)), sqlite3_column_bytes(st, c));
                linhas.valores.push_back(std::move(v));
            }
        }
        sqlite3_finalize(st);
        if (!linhas.valores.empty())
            todas.push_back(std::move(linhas));
    }
    sqlite3_close(db);
    return todas;
}

// The same-schema load at its least: one prepared INSERT per table, every value bound, one transaction.
Medida cargaPreparada(const QString& banco, const std::vector<LinhasTabela>& todas)
{
    Cronometro c;
    sqlite3* db = abreBanco(banco);
    roda(db, "PRAGMA foreign_keys = ON");
    roda(db, "BEGIN");
    for (const LinhasTabela& t : todas) {
        QString sql = QStringLiteral("INSERT INTO ") + t.nome + QStringLiteral(" VALUES (?");
        for (int i = 1; i < t.colunas; ++i)
            sql += QStringLiteral(", ?");
        sql += QLatin1Char(')');
        sqlite3_stmt* st = nullptr;
        if (sqlite3_prepare_v2(db, sql.toUtf8().constData(), -1, &st, nullptr) != SQLITE_OK)
            std::fprintf(stderr, "%s: %s\n", qPrintable(sql), sqlite3_errmsg(db));
        for (size_t inicio = 0; inicio < t.valores.size(); inicio += size_t(t.colunas)) {
            for (int i = 0; i < t.colunas; ++i) {
                const Valor& v = t.valores[inicio + size_t(i)];
                if (v.tipo == SQLITE_INTEGER)
                    sqlite3_bind_int64(st, i + 1, v.inteiro);
                else if (v.tipo == SQLITE_FLOAT)
                    sqlite3_bind_double(st, i + 1, v.real);
                else if (v.tipo == SQLITE_TEXT)
                    // As the reader binds a text: ended by the NUL QByteArray keeps, so the engine needs no
                    // copy of it to run the schema's CHECK(length(...)).
                    sqlite3_bind_text(st, i + 1, v.bytes.constData(),
                                      v.bytes.contains('\0') ? int(v.bytes.size()) : -1, SQLITE_STATIC);
                else if (v.tipo == SQLITE_BLOB)
                    sqlite3_bind_blob(st, i + 1, v.bytes.constData(), int(v.bytes.size()), SQLITE_STATIC);
                else
                    sqlite3_bind_null(st, i + 1);
            }
            if (sqlite3_step(st) != SQLITE_DONE)
                std::fprintf(stderr, "%s: %s\n", qPrintable(t.nome), sqlite3_errmsg(db));
            sqlite3_reset(st);
        }
        sqlite3_finalize(st);
    }
    roda(db, "COMMIT");
    sqlite3_close(db);
    return c.para();
}

// The export: the shell writes every row of the declaration's tables as CSV.
Medida exportacao(const QString& banco, const QStringList& tabelas, const QString& pasta)
{
    QString script = QStringLiteral(".headers off\n.mode csv\n");
    for (const QString& t : tabelas)
        script += QStringLiteral(".output %1/%2.csv\nSELECT * FROM %2;\n").arg(pasta, t);
    Cronometro c;
    if (!shell(banco, script))
        return {-1, -1};
    return c.para();
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

// Read in pieces, so that counting a file of a million records does not add its size to the peak memory.
qint64 contaLinhas(const QString& arquivo)
{
    QFile f(arquivo);
    f.open(QIODevice::ReadOnly);
    qint64 linhas = 0;
    char ultimo = '\n';
    while (!f.atEnd()) {
        const QByteArray b = f.read(1 << 20);
        linhas += b.count('\n');
        if (!b.isEmpty())
            ultimo = b.back();
    }
    return linhas + (ultimo == '\n' ? 0 : 1);
}

void linha(const char* oQue, const Medida& m, qint64 registros, const QString& nota)
{
    std::printf("%-36s %7.2f s  %6.2f s CPU  %9.0f registros/s  %s\n", oQue, m.parede, m.cpu,
                registros / m.parede, qPrintable(nota));
}

QString razoes(const Medida& m, const Medida& piso, const char* nomePiso, const Medida& nua)
{
    return QStringLiteral("%1x %2 (CPU %3x); %4x a carga nua")
        .arg(m.parede / piso.parede, 0, 'f', 2)
        .arg(QString::fromUtf8(nomePiso))
        .arg(m.cpu / piso.cpu, 0, 'f', 2)
        .arg(m.parede / nua.parede, 0, 'f', 2);
}

void escala(double fator)
{
    for (int* n : {&ItensPE, &ItensPPB, &ItensSemPPB, &ItensNacionais})
        *n = qMax(1, int(*n * fator));
}

long picoKb(int quem)
{
    rusage u{};
    getrusage(quem, &u);
    return u.ru_maxrss;
}

QString copiaEntregue(const QString& pasta, const QString& nome)
{
    const QString arquivo = pasta + QLatin1Char('/') + nome;
    QFile::remove(arquivo);
    QFile::copy(QStringLiteral(VRT_DELIVERED_DB), arquivo);
    QFile(arquivo).setPermissions(QFile::ReadOwner | QFile::WriteOwner);
    return arquivo;
}

void mostraFase(const Medida& m, long kb, qint64 registros = 0, const QString& arquivo = QString())
{
    std::printf("FASE %.4f %.4f %ld %lld %s\n", m.parede, m.cpu, kb, static_cast<long long>(registros),
                qPrintable(arquivo));
}

// The phases of the scaling table, each run as a process of its own by `escalas`.
int faseGrava(double fator, const QString& pasta)
{
    escala(fator);
    modVRTPLN::CaminhoAplicacao = pasta;
    modVRTPLN::CaminhoDados = pasta;
    ConectaBanco(copiaEntregue(pasta, QStringLiteral("origem.mdb")));
    monta();
    Cronometro c;
    const ResultadoGravacao g = GravaVrt({Id}, pasta, ModoGravacao::Backup);
    const Medida m = c.para();
    DesconectaBanco();
    if (g.arquivos.isEmpty() || g.erroGravacao)
        return 1;
    mostraFase(m, picoKb(RUSAGE_SELF), contaLinhas(g.arquivos.first()), g.arquivos.first());
    return 0;
}

int faseVerifica(const QString& arquivo)
{
    Cronometro c;
    QProcess verificar;
    verificar.start(QStringLiteral(VRT_BINARY_DIR "/vrt-cli"), {QStringLiteral("verificar"), arquivo});
    verificar.waitForFinished(-1);
    mostraFase(c.para(), picoKb(RUSAGE_CHILDREN));
    return verificar.exitCode();
}

int faseLe(const QString& pasta, const QString& arquivo)
{
    modVRTPLN::CaminhoAplicacao = pasta;
    modVRTPLN::CaminhoDados = pasta;
    ConectaBanco(copiaEntregue(pasta, QStringLiteral("destino.mdb")));
    ncm();
    Cronometro c;
    LeArquivoVrt leitura(pasta, QFileInfo(arquivo).fileName(), ModoLeitura::Restaurar);
    const bool lida = leitura.executa();
    const Medida m = c.para();
    DesconectaBanco();
    mostraFase(m, picoKb(RUSAGE_SELF));
    return lida ? 0 : 1;
}

// The same-schema floor of a reading done by `--le` in `pasta`, alone: for a profiler, which can then compare the
// instructions of the two (`valgrind --tool=callgrind --toggle-collect=...`) where times on a shared machine vary.
int fasePiso(const QString& pasta)
{
    const QString antes = copiaEntregue(pasta, QStringLiteral("antes.mdb"));
    ConectaBanco(antes);
    ncm();
    const QStringList tabelas = tabelasDaDeclaracao();
    DesconectaBanco();
    const std::vector<LinhasTabela> criadas =
        tiraLinhasCriadas(pasta + QStringLiteral("/destino.mdb"), antes, tabelas);
    const Medida m = cargaPreparada(antes, criadas);
    mostraFase(m, picoKb(RUSAGE_SELF));
    return 0;
}

// Runs this program with `argumentos` and reads the figures of its FASE line.
QStringList fase(const QStringList& argumentos)
{
    QProcess p;
    p.start(QCoreApplication::applicationFilePath(), argumentos);
    p.waitForFinished(-1);
    for (const QByteArray& l : p.readAllStandardOutput().split('\n')) {
        if (l.startsWith("FASE ") && p.exitCode() == 0)
            return QString::fromUtf8(l).split(QLatin1Char(' ')).mid(1);
    }
    std::fprintf(stderr, "a fase %s falhou\n", qPrintable(argumentos.join(QLatin1Char(' '))));
    return {};
}

int escalas(const QString& lista)
{
    std::printf("%10s %-10s %9s %9s %9s %11s %15s\n", "registros", "fase", "s", "s CPU", "MB pico", "us/registro",
                "us CPU/registro");
    for (const QString& fator : lista.split(QLatin1Char(','))) {
        QTemporaryDir dir;
        const QStringList g = fase({QStringLiteral("--grava"), fator, dir.path()});
        if (g.size() < 5)
            return 1;
        const QStringList v = fase({QStringLiteral("--verifica"), g.at(4)});
        const QStringList l = fase({QStringLiteral("--le"), dir.path(), g.at(4)});
        const double registros = g.at(3).toDouble();
        const auto linhaFase = [&](const char* nome, const QStringList& f) {
            if (f.size() < 3)
                return;
            std::printf("%10.0f %-10s %9.3f %9.3f %9.1f %11.2f %15.2f\n", registros, nome, f.at(0).toDouble(),
                        f.at(1).toDouble(), f.at(2).toDouble() / 1024.0, f.at(0).toDouble() * 1e6 / registros,
                        f.at(1).toDouble() * 1e6 / registros);
        };
        linhaFase("gravar", g);
        linhaFase("verificar", v);
        linhaFase("ler", l);
        std::fflush(stdout);
    }
    return 0;
}

}  // namespace

int main(int argc, char** argv)
{
    QCoreApplication app(argc, argv);
    InstalaManipuladorMsg([](const QString&, int estilo, const QString&) { return RespostaPadrao(estilo); });
    const QStringList args = app.arguments();
    if (args.value(1) == QStringLiteral("--escalas"))
        return escalas(args.value(2, QStringLiteral("0.01,0.1,1,10")));
    if (args.value(1) == QStringLiteral("--grava"))
        return faseGrava(args.value(2).toDouble(), args.value(3));
    if (args.value(1) == QStringLiteral("--verifica"))
        return faseVerifica(args.value(2));
    if (args.value(1) == QStringLiteral("--le"))
        return faseLe(args.value(2), args.value(3));
    if (args.value(1) == QStringLiteral("--piso"))
        return fasePiso(args.value(2));
    QStringList argumentos = args.mid(1);
    const bool soGravacao = argumentos.removeAll(QStringLiteral("--so-gravacao")) > 0;
    if (!argumentos.isEmpty())
        escala(argumentos.first().toDouble());
    QTemporaryDir dir;
    dir.setAutoRemove(qEnvironmentVariableIsEmpty("VRT_BENCH_GUARDA"));  // kept for a look at the files
    const QString pasta = dir.path();
    const auto copiaBanco = [&](const QString& nome) {
        const QString arquivo = pasta + QLatin1Char('/') + nome;
        QFile::copy(QStringLiteral(VRT_DELIVERED_DB), arquivo);
        QFile(arquivo).setPermissions(QFile::ReadOwner | QFile::WriteOwner);
        return arquivo;
    };
    modVRTPLN::CaminhoAplicacao = pasta;
    modVRTPLN::CaminhoDados = pasta;

    const QString origem = copiaBanco(QStringLiteral("origem.mdb"));
    ConectaBanco(origem);
    QElapsedTimer r;
    r.start();
    monta();
    std::printf("declaração montada no banco em %.2f s\n", segundos(r));

    ResultadoGravacao g;
    const Medida gravar = melhorDe([&] { g = GravaVrt({Id}, pasta, ModoGravacao::Backup); });
    if (g.arquivos.isEmpty() || g.erroGravacao) {
        std::fprintf(stderr, "a gravação falhou\n");
        return 1;
    }
    const QString arquivo = g.arquivos.first();
    const qint64 registros = contaLinhas(arquivo);
    const QStringList tabelas = tabelasDaDeclaracao();
    DesconectaBanco();
    const long memoriaGravacao = [] { rusage u{}; getrusage(RUSAGE_SELF, &u); return u.ru_maxrss; }();

    QDir(pasta).mkpath(QStringLiteral("exportado"));
    const Medida exportar = melhorDe([&] { exportacao(origem, tabelas, pasta + QStringLiteral("/exportado")); });
    if (soGravacao) {
        std::printf("registros no arquivo: %lld (%.1f MB)\n", static_cast<long long>(registros),
                    QFileInfo(arquivo).size() / 1e6);
        linha("gravar (GravaVrt)", gravar, registros,
              QStringLiteral("%1x a exportação (CPU %2x)")
                  .arg(gravar.parede / exportar.parede, 0, 'f', 2)
                  .arg(gravar.cpu / exportar.cpu, 0, 'f', 2));
        linha("sqlite3: exportação CSV das tabelas", exportar, registros, QString());
        std::printf("memória de pico: gravar %.1f MB\n", memoriaGravacao / 1024.0);
        return 0;
    }

    Cronometro cv;
    QProcess verificar;
    verificar.start(QStringLiteral(VRT_BINARY_DIR "/vrt-cli"), {QStringLiteral("verificar"), arquivo});
    verificar.waitForFinished(1800000);
    const Medida verificacao = cv.para();
    const QByteArray saidaVerificar = verificar.readAllStandardOutput().trimmed();
    const long memoriaVerificar = [] { rusage u{}; getrusage(RUSAGE_CHILDREN, &u); return u.ru_maxrss; }();

    const QString destino = copiaBanco(QStringLiteral("destino.mdb"));
    ConectaBanco(destino);
    ncm();
    DesconectaBanco();
    const QString antes = pasta + QStringLiteral("/antes.mdb");
    QFile::copy(destino, antes);
    // Three readings, each into its own copy of the database as it was before; the best of each measure.
    bool lida = true;
    Medida ler{1e9, 1e9};
    for (int i = 0; i < 3; ++i) {
        QFile::remove(destino);
        QFile::copy(antes, destino);
        ::sync(); // the copy's pages on disk before the clock starts, for the reading and the load alike
        ConectaBanco(destino);
        Cronometro cl;
        LeArquivoVrt leitura(pasta, QFileInfo(arquivo).fileName(), ModoLeitura::Restaurar);
        lida = leitura.executa() && lida;
        const Medida m = cl.para();
        ler = {qMin(ler.parede, m.parede), qMin(ler.cpu, m.cpu)};
        if (i < 2)
            DesconectaBanco();
    }
    const long memoriaLeitura = [] { rusage u{}; getrusage(RUSAGE_SELF, &u); return u.ru_maxrss; }();
    qint64 linhasCriadas = 0;
    for (const QString& t : tabelas)
        linhasCriadas += ValorUnico(QStringLiteral("SELECT COUNT(*) FROM ") + t).toLongLong();
    DesconectaBanco();

    // The floors of the reading: the rows it created, loaded into the database as it was before, once through
    // prepared statements and once by the shell from files of INSERTs.
    const QString antesShell = pasta + QStringLiteral("/antes-shell.mdb");
    QFile::copy(antes, antesShell);
    const std::vector<LinhasTabela> criadas = tiraLinhasCriadas(destino, antes, tabelas);
    const QString antesCopia = pasta + QStringLiteral("/antes-copia.mdb");
    QFile::copy(antes, antesCopia);
    Medida preparada{1e9, 1e9};
    for (int i = 0; i < 3; ++i) {
        QFile::remove(antes);
        QFile::copy(antesCopia, antes);
        ::sync();
        const Medida m = cargaPreparada(antes, criadas);
        preparada = {qMin(preparada.parede, m.parede), qMin(preparada.cpu, m.cpu)};
    }
    const auto contaEm = [&tabelas](const QString& banco) {
        ConectaBanco(banco);
        qint64 n = 0;
        for (const QString& t : tabelas)
            n += ValorUnico(QStringLiteral("SELECT COUNT(*) FROM ") + t).toLongLong();
        DesconectaBanco();
        return n;
    };
    const qint64 linhasPreparada = contaEm(antes);
    QDir(pasta).mkpath(QStringLiteral("lido"));
    const QStringList comLinhas = despeja(destino, antesShell, tabelas, pasta + QStringLiteral("/lido"));
    const Medida mesmoEsquema = cargaMesmoEsquema(antesShell, comLinhas, pasta + QStringLiteral("/lido"));
    const qint64 linhasCarregadas = contaEm(antesShell);

    const double tNua = cargaSqlite(pasta, registros);
    const Medida nua{tNua, tNua};

    const auto comShell = [&](const Medida& m) {
        return QStringLiteral("; %1x a carga do shell").arg(m.parede / mesmoEsquema.parede, 0, 'f', 2);
    };
    std::printf("registros no arquivo: %lld (%.1f MB)\n", static_cast<long long>(registros),
                QFileInfo(arquivo).size() / 1e6);
    linha("gravar (GravaVrt)", gravar, registros, razoes(gravar, exportar, "a exportação", nua));
    linha("verificar (vrt-cli)", verificacao, registros,
          razoes(verificacao, preparada, "a carga igual", nua) + comShell(verificacao) +
              QStringLiteral(" [%1, saída %2]").arg(QString::fromUtf8(saidaVerificar)).arg(verificar.exitCode()));
    linha("ler num banco vazio (LeArquivoVrt)", ler, registros,
          razoes(ler, preparada, "a carga igual", nua) + comShell(ler) +
              (lida ? QStringLiteral(" [concluída]") : QStringLiteral(" [FALHOU]")));
    linha("sqlite3: exportação CSV das tabelas", exportar, registros, QString());
    linha("carga igual (preparada, C)", preparada, registros,
          QStringLiteral("%1 linhas em %2 tabelas").arg(linhasPreparada).arg(criadas.size()));
    linha("sqlite3: carga igual (INSERTs)", mesmoEsquema, registros,
          QStringLiteral("%1 linhas em %2 tabelas").arg(linhasCarregadas).arg(comLinhas.size()));
    std::printf("%-36s %7.2f s\n", "sqlite3: carga nua (uma tabela)", tNua);
    std::printf("linhas criadas pela leitura: %lld; pela carga preparada: %lld; pelo shell: %lld\n",
                static_cast<long long>(linhasCriadas), static_cast<long long>(linhasPreparada),
                static_cast<long long>(linhasCarregadas));
    std::printf("memória de pico: gravar %.1f MB, ler %.1f MB (este processo), verificar %.1f MB (vrt-cli)\n",
                memoriaGravacao / 1024.0, memoriaLeitura / 1024.0, memoriaVerificar / 1024.0);
    return lida ? 0 : 1;
}
