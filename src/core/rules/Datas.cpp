#include "core/rules/Datas.h"

#include "core/rules/FormatoNumero.h"

#include <QStringList>

namespace Funcoes {

namespace {

bool entre(const QString& valor, const char* de, const char* ate)
{
    return valor >= QLatin1String(de) && valor <= QLatin1String(ate);
}

}  // namespace

bool ValidaData(const QString& data)
{
    if (data.isEmpty())
        return true;
    if (data.size() != 10)
        return false;
    const QString ano = data.right(4);
    const QString mes = data.mid(3, 2);
    const QString dia = data.left(2);
    if (!entre(ano, "1950", "2100") || !entre(mes, "01", "12"))
        return false;

    static const QStringList meses31 = {QStringLiteral("01"), QStringLiteral("03"), QStringLiteral("05"),
                                        QStringLiteral("07"), QStringLiteral("08"), QStringLiteral("10"),
                                        QStringLiteral("12")};
    if (meses31.contains(mes))
        return entre(dia, "01", "31");
    if (mes != QLatin1String("02"))
        return entre(dia, "01", "30");
    bool ok = false;
    const int anoNumero = ano.toInt(&ok, 10);
    const bool bissexto = ok && anoNumero % 4 == 0;
    return entre(dia, "01", bissexto ? "29" : "28");
}

QString DataParaValidar(const QString& digitos)
{
    return FormataMascara(digitos.trimmed(), QStringLiteral("00/00/0000"));
}

bool DataEmBranco(const QString& data)
{
    return data.trimmed().isEmpty() || data == QLatin1String("00/00/0000");
}

bool ValidaAno(const QString& ano)
{
    if (ano.isEmpty())
        return true;
    if (ano.size() != 4)
        return false;
    return ano >= QLatin1String("2002");
}

bool ComparaDatas(const QString& primeira, const QString& segunda)
{
    const QString a = primeira.trimmed();
    const QString b = segunda.trimmed();
    if (a.isEmpty() || b.isEmpty())
        return true;
    const auto reordena = [](const QString& d) { return (d.mid(4, 4) + d.mid(2, 2) + d.left(2)).toLongLong(); };
    return reordena(b) >= reordena(a);
}

}  // namespace Funcoes
