#include "ApoioFuzz.h"

#include "core/session/MsgBox.h"
#include "core/store/modBancoDados.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QSqlDatabase>
#include <QSqlError>
#include <QSqlQuery>
#include <cstdio>
#include <cstdlib>

namespace ApoioFuzz {

namespace {

QStringList tabelasEntregues;
// The connection's count of changed rows when the tables were last put back: while it stands still (most inputs
// are refused before a row is written), there is nothing to put back, and copying every table would take most
// of each run.
qint64 mudancasAoRestaurar = -1;

void executa(const QString& sql)
{
    QSqlQuery q(modBancoDados::ConexaoBanco());
    if (!q.exec(sql))
        Falha("comando de apoio recusado", sql + QStringLiteral(": ") + q.lastError().text());
}

QStringList linhas(const QString& sql)
{
    QSqlQuery q(modBancoDados::ConexaoBanco());
    if (!q.exec(sql))
        Falha("consulta de apoio recusada", sql + QStringLiteral(": ") + q.lastError().text());
    QStringList r;
    while (q.next())
        r << q.value(0).toString();
    return r;
}

qint64 mudancas()
{
    return linhas(QStringLiteral("SELECT total_changes()")).value(0).toLongLong();
}

}  // namespace

void Inicia()
{
    static bool iniciado = false;
    if (iniciado)
        return;
    iniciado = true;
    static int argc = 1;
    static char nome[] = "vrt-fuzz";
    static char* argv[] = {nome, nullptr};
    new QCoreApplication(argc, argv);
    InstalaManipuladorMsg([](const QString&, int estilo, const QString&) {
        const int botoes = estilo & Msg::MascaraBotoes;
        return (botoes == Msg::YesNo || botoes == Msg::YesNoCancel) ? Msg::Yes : RespostaPadrao(estilo);
    });
    modBancoDados::DefineEncerramento(modBancoDados::EncerramentoPorExcecao);
}

void AbreBancoEmMemoria()
{
    if (modBancoDados::Conectado())
        return;
    QSqlDatabase db = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), modBancoDados::NomeConexao);
    db.setDatabaseName(QStringLiteral(":memory:"));
    if (!db.open())
        Falha("banco em memória não abriu", db.lastError().text());
    executa(QStringLiteral("ATTACH DATABASE '%1' AS entregue").arg(QStringLiteral(VRT_DELIVERED_DB)));
    // Tables first, then what refers to them (views, indexes, triggers).
    for (const QString& sql :
         linhas(QStringLiteral("SELECT sql FROM entregue.sqlite_master WHERE sql IS NOT NULL AND name NOT LIKE "
                               "'sqlite_%' ORDER BY CASE type WHEN 'table' THEN 0 ELSE 1 END, rowid")))
        executa(sql);
    tabelasEntregues = linhas(QStringLiteral(
        "SELECT name FROM entregue.sqlite_master WHERE type = 'table' AND name NOT LIKE 'sqlite_%' ORDER BY name"));
    RestauraBanco();
    executa(QStringLiteral("PRAGMA foreign_keys = ON"));
}

void RestauraBanco()
{
    if (mudancas() == mudancasAoRestaurar)
        return;
    executa(QStringLiteral("PRAGMA foreign_keys = OFF"));
    for (const QString& t : tabelasEntregues) {
        executa(QStringLiteral("DELETE FROM main.%1").arg(t));
        executa(QStringLiteral("INSERT INTO main.%1 SELECT * FROM entregue.%1").arg(t));
    }
    executa(QStringLiteral("DELETE FROM main.sqlite_sequence"));
    executa(QStringLiteral("PRAGMA foreign_keys = ON"));
    mudancasAoRestaurar = mudancas();
}

QString Retrato()
{
    QStringList partes;
    for (const QString& t : tabelasEntregues)
        partes << t + QLatin1Char('=') + linhas(QStringLiteral("SELECT COUNT(*) FROM main.%1").arg(t)).join(QString());
    partes << linhas(QStringLiteral("SELECT ID_VRT_MICRO FROM VRT ORDER BY 1"));
    partes << linhas(QStringLiteral("SELECT NUM_ULTIMA_VRT || '/' || ANO FROM ARQUIVO_NUMERADOR"));
    partes << linhas(QStringLiteral("SELECT CD_INT_PRODUTO || NM_INT_PRODUTO FROM PRODUTO ORDER BY 1"));
    return partes.join(QLatin1Char(';'));
}

void GravaEntrada(const uint8_t* dados, size_t tamanho, QString& pasta, QString& nome)
{
    static const QString pastaTrabalho = [] {
        const QString shm = QStringLiteral("/dev/shm");
        return QDir(shm).exists() ? shm : QDir::tempPath();
    }();
    static const QString nomeTrabalho = QStringLiteral("vrt-fuzz-%1.txt").arg(QCoreApplication::applicationPid());
    QFile f(pastaTrabalho + QLatin1Char('/') + nomeTrabalho);
    if (!f.open(QIODevice::WriteOnly | QIODevice::Truncate))
        Falha("arquivo de trabalho não abriu", f.fileName());
    f.write(reinterpret_cast<const char*>(dados), qint64(tamanho));
    f.close();
    pasta = pastaTrabalho;
    nome = nomeTrabalho;
}

void Falha(const char* motivo, const QString& detalhe)
{
    std::fprintf(stderr, "vrt-fuzz: %s: %s\n", motivo, detalhe.toUtf8().constData());
    std::abort();
}

}  // namespace ApoioFuzz
