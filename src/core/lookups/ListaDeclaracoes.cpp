#include "core/lookups/ListaDeclaracoes.h"

#include "core/store/modBancoDados.h"

#include <QSqlQuery>

namespace ListaDeclaracoes {

namespace {

// Format(campo, '@@...') of the old engine: the text fills the placeholders from the right and a placeholder
// left over is a blank; a missing value stays missing. printf('%Ns') right-aligns the text in N places.
QString mascara(const QString& coluna, const QList<int>& partes, const QStringList& separadores)
{
    int total = 0;
    for (int p : partes)
        total += p;
    const QString alinhado =
        QStringLiteral("printf('%") + QString::number(total) + QStringLiteral("s', ") + coluna + QLatin1Char(')');
    QString expressao;
    int inicio = 1;
    for (int i = 0; i < partes.size(); ++i) {
        if (i > 0)
            expressao += QStringLiteral(" || '") + separadores.at(i - 1) + QStringLiteral("' || ");
        expressao += QStringLiteral("substr(%1, %2, %3)").arg(alinhado).arg(inicio).arg(partes.at(i));
        inicio += partes.at(i);
    }
    return QStringLiteral("CASE WHEN %1 IS NULL THEN NULL ELSE %2 END").arg(coluna, expressao);
}

}  // namespace

QStringList Titulos()
{
    return {QStringLiteral("Identificação"),      QStringLiteral("Internador"),
            QStringLiteral("Criação"),            QStringLiteral("Tipo"),
            QStringLiteral("Referência Mensal"),  QStringLiteral("Nota Fiscal Individual"),
            QStringLiteral("Série Individual"),   QStringLiteral("Situação")};
}

QString ColunaOrdenacao(int coluna)
{
    switch (coluna) {
    case Identificacao: return QStringLiteral("ID_VRT_MICRO");
    case Internador: return QStringLiteral("NR_CNPJ_INTERNADOR");
    case Criacao: return QStringLiteral("DT_REGISTRO_VRT_MICRO");
    case Tipo: return QStringLiteral("CD_TIPO_VRT");
    default: return QString();
    }
}

QString SqlLista()
{
    static const QString sql =
        QStringLiteral("SELECT VRT.ID_VRT_MICRO, ")
        + mascara(QStringLiteral("VRT.NR_CNPJ_INTERNADOR"), {2, 3, 3, 4, 2},
                  {QStringLiteral("."), QStringLiteral("."), QStringLiteral("/"), QStringLiteral("-")})
        + QStringLiteral(" AS NR_CNPJ_INTERNADOR, "
                         "strftime('%d/%m/%Y', VRT.DT_REGISTRO_VRT_MICRO) AS DT_REGISTRO_VRT_MICRO, "
                         "CASE WHEN VRT.CD_TIPO_VRT = '1' THEN 'Individual' ELSE 'Mensal' END AS TIPOVRT, ")
        + mascara(QStringLiteral("VRT_MENSAL.DT_REFERENCIA_VRT"), {2, 4}, {QStringLiteral("/")})
        + QStringLiteral(" AS REFERENCIA, NOTA_FISCAL_SAIDA.NR_NF_SAIDA, NOTA_FISCAL_SAIDA.NR_SERIE_NF_SAIDA, "
                         "CASE WHEN VRT.IND_RETIFICACAO = 'S' THEN 'Retificadora' ELSE 'Original' END AS SITUACAOVRT "
                         "FROM (VRT LEFT JOIN NOTA_FISCAL_SAIDA ON VRT.ID_VRT_MICRO = NOTA_FISCAL_SAIDA.ID_VRT_MICRO) "
                         "LEFT JOIN VRT_MENSAL ON VRT.ID_VRT_MICRO = VRT_MENSAL.ID_VRT_MICRO");
    return sql;
}

QList<QStringList> Lista(int coluna, const QString& direcao)
{
    QString campo = ColunaOrdenacao(coluna);
    if (campo.isEmpty())
        campo = ColunaOrdenacao(Identificacao);
    // Column and direction come from fixed lists, never from what the user typed.
    const QString sentido = direcao.compare(QLatin1String("DESC"), Qt::CaseInsensitive) == 0 ? QStringLiteral("DESC")
                            : direcao.isEmpty()                                             ? QString()
                                                                                             : QStringLiteral("ASC");
    QSqlQuery rs(modBancoDados::ConexaoBanco());
    rs.setForwardOnly(true);
    modBancoDados::AbreConsulta(rs, SqlLista() + QStringLiteral(" ORDER BY VRT.") + campo + QLatin1Char(' ') + sentido);
    QList<QStringList> linhas;
    while (rs.next()) {
        QStringList linha;
        linha.reserve(QuantidadeColunas);
        for (int i = 0; i < QuantidadeColunas; ++i)
            linha << rs.value(i).toString();
        linhas << linha;
    }
    return linhas;
}

}  // namespace ListaDeclaracoes
