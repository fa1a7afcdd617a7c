#include "core/file/numbering/IdentificacaoPrevista.h"

#include "core/store/modBancoDados.h"

namespace Funcoes {

QString IdentificacaoPrevista(const QDate& hoje)
{
    const QString ano = QStringLiteral("%1").arg(hoje.year() % 100, 2, 10, QLatin1Char('0'));
    const QVariant ultimo = modBancoDados::ValorUnico(QStringLiteral("SELECT NUM_ULTIMA_VRT FROM ARQUIVO_NUMERADOR"));
    if (!ultimo.isValid())
        return QStringLiteral("00001/") + ano;
    return QStringLiteral("%1/").arg(ultimo.toLongLong() + 1, 5, 10, QLatin1Char('0')) + ano;
}

}  // namespace Funcoes
