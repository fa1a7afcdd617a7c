// Builds the delivered database: the schema, then every reference data script (*.sql) of the data folder in name
// order, then every reference table (*.tsv: currencies, states, commercial units, NCM), each named after its table.
// Usage: vrt-criabanco schema.sql PASTA_DADOS ARQUIVO_SAIDA
#include "core/store/ScriptSql.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSqlDatabase>
#include <QSqlError>
#include <QSqlQuery>
#include <cstdio>
#include <cstdlib>

namespace {

QString arquivoSaida;

// A half-built file must not be taken for the delivered database by the next build.
[[noreturn]] void falha(const QString& texto)
{
    std::fprintf(stderr, "vrt-criabanco: %s\n", qPrintable(texto));
    if (!arquivoSaida.isEmpty())
        QFile::remove(arquivoSaida);
    std::exit(1);
}

QString leTexto(const QString& caminho)
{
    QFile f(caminho);
    if (!f.open(QIODevice::ReadOnly))
        falha(QStringLiteral("não foi possível ler %1").arg(caminho));
    QString texto = QString::fromUtf8(f.readAll());
    if (texto.startsWith(QChar(0xFEFF)))  // the byte order mark some files begin with
        texto.remove(0, 1);
    return texto;
}

void executaScript(QSqlDatabase& db, const QString& caminho)
{
    for (const QString& comando : DivideScriptSql(leTexto(caminho))) {
        QSqlQuery q(db);
        if (!q.exec(comando))
            falha(QStringLiteral("%1: %2\n%3").arg(caminho, q.lastError().text(), comando.left(300)));
    }
}

// One of our reference tables: "#" lines say where the rows come from, the first other line names the columns,
// each further line is a row of tab-separated values. The file name, less ".tsv", is the table.
void carregaTabela(QSqlDatabase& db, const QString& caminho)
{
    const QString tabela = QFileInfo(caminho).completeBaseName();
    QStringList colunas;
    QSqlQuery q(db);
    long long linhas = 0;
    for (const QString& linha : leTexto(caminho).split(QLatin1Char('\n'))) {
        if (linha.isEmpty() || linha.startsWith(QLatin1Char('#')))
            continue;
        const QStringList valores = linha.split(QLatin1Char('\t'));
        if (colunas.isEmpty()) {
            colunas = valores;
            const QString marcas = QStringList(colunas.size(), QStringLiteral("?")).join(QLatin1String(", "));
            if (!q.prepare(QStringLiteral("INSERT INTO %1 (%2) VALUES (%3)")
                               .arg(tabela, colunas.join(QLatin1String(", ")), marcas)))
                falha(QStringLiteral("%1: %2").arg(caminho, q.lastError().text()));
            continue;
        }
        if (valores.size() != colunas.size())
            falha(QStringLiteral("%1: linha fora do formato: %2").arg(caminho, linha));
        for (const QString& v : valores)
            q.addBindValue(v);
        if (!q.exec())
            falha(QStringLiteral("%1: %2 (%3)").arg(caminho, q.lastError().text(), linha));
        ++linhas;
    }
    if (linhas == 0)
        falha(QStringLiteral("%1: nenhuma linha lida").arg(caminho));
    std::printf("%s: %lld linhas\n", qPrintable(tabela), linhas);
}

}  // namespace

int main(int argc, char** argv)
{
    QCoreApplication app(argc, argv);
    const QStringList args = app.arguments();
    if (args.size() != 4) {
        std::fprintf(stderr, "uso: vrt-criabanco schema.sql PASTA_DADOS ARQUIVO_SAIDA\n");
        return 2;
    }
    arquivoSaida = args[3];
    QFile::remove(args[3]);
    bool ok = false;
    {
        QSqlDatabase db = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), QStringLiteral("cria"));
        db.setDatabaseName(args[3]);
        if (!db.open()) {
            std::fprintf(stderr, "%s\n", qPrintable(db.lastError().text()));
            return 1;
        }
        QSqlQuery(db).exec(QStringLiteral("PRAGMA foreign_keys = ON"));
        db.transaction();
        executaScript(db, args[1]);
        const QDir dados(args[2]);
        for (const QString& nome : dados.entryList({QStringLiteral("*.sql")}, QDir::Files, QDir::Name))
            executaScript(db, dados.filePath(nome));
        for (const QString& nome : dados.entryList({QStringLiteral("*.tsv")}, QDir::Files, QDir::Name))
            carregaTabela(db, dados.filePath(nome));
        ok = db.commit();
        if (!ok)
            std::fprintf(stderr, "%s\n", qPrintable(db.lastError().text()));
        db.close();
    }
    QSqlDatabase::removeDatabase(QStringLiteral("cria"));
    if (!ok) {
        QFile::remove(args[3]);
        return 1;
    }
    return 0;
}
