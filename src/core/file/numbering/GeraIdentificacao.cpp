#include "core/file/numbering/GeraIdentificacao.h"

#include "core/store/modBancoDados.h"

#include <QSqlQuery>

using namespace modBancoDados;

namespace Funcoes {

QString GeraIdentificacao(const QDate& hoje)
{
    const QString ano = QStringLiteral("%1").arg(hoje.year() % 100, 2, 10, QLatin1Char('0'));
    QSqlQuery rs(ConexaoBanco());
    AbreConsulta(rs, QStringLiteral("SELECT NUM_ULTIMA_VRT, ANO FROM ARQUIVO_NUMERADOR"));
    if (!rs.next()) {
        rs.finish();
        ExecutaSql(QStringLiteral("INSERT INTO ARQUIVO_NUMERADOR (NUM_ULTIMA_VRT, ANO) VALUES (1, ?)"), {ano.toInt()});
        return QStringLiteral("00001/") + ano;
    }
    const QVariant ultimo = rs.value(0);
    rs.finish();
    const qint64 n = ultimo.toLongLong();
    const QString identificacao = QStringLiteral("%1/").arg(n + 1, 5, 10, QLatin1Char('0')) + ano;
    // The number stored is the first five characters of the identification, whatever its length.
    ExecutaSql(QStringLiteral("UPDATE ARQUIVO_NUMERADOR SET NUM_ULTIMA_VRT = ?, ANO = ? WHERE NUM_ULTIMA_VRT IS ?"),
               {identificacao.left(5).toLongLong(), ano.toInt(), ultimo});
    return identificacao;
}

QString GeraIdentificacaoDoAno(const QDate& hoje)
{
    const int ano = hoje.year() % 100;
    QSqlQuery rs(ConexaoBanco());
    AbreConsulta(rs, QStringLiteral("SELECT NUM_ULTIMA_VRT, ANO FROM ARQUIVO_NUMERADOR"));
    const bool existe = rs.next();
    const bool mesmoAno = existe && rs.value(1).toInt() == ano;
    rs.finish();
    if (mesmoAno)
        ExecutaSql(QStringLiteral("UPDATE ARQUIVO_NUMERADOR SET NUM_ULTIMA_VRT = NUM_ULTIMA_VRT + 1"));
    else if (existe)
        ExecutaSql(QStringLiteral("UPDATE ARQUIVO_NUMERADOR SET NUM_ULTIMA_VRT = 1, ANO = ?"), {ano});
    else
        ExecutaSql(QStringLiteral("INSERT INTO ARQUIVO_NUMERADOR (NUM_ULTIMA_VRT, ANO) VALUES (1, ?)"), {ano});
    AbreConsulta(rs, QStringLiteral("SELECT NUM_ULTIMA_VRT, ANO FROM ARQUIVO_NUMERADOR"));
    rs.next();
    const QString id = QStringLiteral("%1/%2")
                           .arg(rs.value(0).toLongLong(), 5, 10, QLatin1Char('0'))
                           .arg(rs.value(1).toInt(), 2, 10, QLatin1Char('0'));
    rs.finish();
    return id;
}

}  // namespace Funcoes
