// Builds the delivered database: the schema, then every reference data script of the data folder in name order.
// Usage: vrt-criabanco schema.sql PASTA_DADOS ARQUIVO_SAIDA
#include "store/ScriptSql.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QSqlDatabase>
#include <QSqlError>
#include <QSqlQuery>
#include <cstdio>

namespace {

QString leTexto(const QString& caminho)
{
    QFile f(caminho);
    if (!f.open(QIODevice::ReadOnly)) {
        std::fprintf(stderr, "não foi possível ler %s\n", qPrintable(caminho));
        std::exit(1);
    }
    return QString::fromUtf8(f.readAll());
}

void executaScript(QSqlDatabase& db, const QString& caminho)
{
    for (const QString& comando : DivideScriptSql(leTexto(caminho))) {
        QSqlQuery q(db);
        if (!q.exec(comando)) {
            std::fprintf(stderr, "%s: %s\n%s\n", qPrintable(caminho), qPrintable(q.lastError().text()),
                         qPrintable(comando.left(300)));
            std::exit(1);
        }
    }
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
    QFile::remove(args[3]);
    {
        QSqlDatabase db = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), QStringLiteral("cria"));
        db.setDatabaseName(args[3]);
        if (!db.open()) {
            std::fprintf(stderr, "%s\n", qPrintable(db.lastError().text()));
            return 1;
        }
        db.transaction();
        executaScript(db, args[1]);
        const QDir dados(args[2]);
        for (const QString& nome : dados.entryList({QStringLiteral("*.sql")}, QDir::Files, QDir::Name))
            executaScript(db, dados.filePath(nome));
        db.commit();
        db.close();
    }
    QSqlDatabase::removeDatabase(QStringLiteral("cria"));
    return 0;
}
