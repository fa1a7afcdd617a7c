#include "core/store/ScriptSql.h"

QStringList DivideScriptSql(const QString& script)
{
    QStringList comandos;
    QString atual;
    bool emGatilho = false;
    const QStringList linhas = script.split(QLatin1Char('\n'));
    for (const QString& bruta : linhas) {
        const QString linha = bruta.trimmed();
        if (linha.isEmpty() || linha.startsWith(QLatin1String("--")))
            continue;
        if (atual.isEmpty() && linha.startsWith(QLatin1String("CREATE TRIGGER"), Qt::CaseInsensitive))
            emGatilho = true;
        atual += bruta + QLatin1Char('\n');
        const bool fim = emGatilho ? linha.compare(QLatin1String("END;"), Qt::CaseInsensitive) == 0
                                   : linha.endsWith(QLatin1Char(';'));
        if (fim) {
            comandos << atual.trimmed();
            atual.clear();
            emGatilho = false;
        }
    }
    if (!atual.trimmed().isEmpty())
        comandos << atual.trimmed();
    return comandos;
}
