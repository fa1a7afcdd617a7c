#pragma once
// Declaration heads for the chooser's tests: the rows the list shows (VRT with its monthly row, or with its
// individual row and exit invoice), written with bound values.
#include "core/store/modBancoDados.h"

#include <QString>

namespace DeclaracoesTeste {

struct Declaracao {
    QString id;                  // "00001/09"
    QString tipo = "2";          // "1" individual, "2" monthly
    QString cnpj = "11222333000181";
    QString criacao = "2009-03-15";  // ISO date, as the column keeps it
    QString retificacao = "N";
    QString referencia = "032009";   // mmyyyy, monthly
    QString nota = "000123";         // individual
    QString serie = "1    ";         // individual
};

inline void insere(const Declaracao& d)
{
    modBancoDados::ExecutaSql(QStringLiteral("INSERT INTO VRT (ID_VRT_MICRO, CD_TIPO_VRT, NR_CNPJ_INTERNADOR, "
                                             "DT_REGISTRO_VRT_MICRO, IND_RETIFICACAO, NR_VRT, IND_MANDADO_JUDIC, "
                                             "IND_RESTITUICAO, NR_PROC_ADM_FISCAL) VALUES (?, ?, ?, ?, ?, ' ', 'N', "
                                             "'N', ' ')"),
                              {d.id, d.tipo, d.cnpj, d.criacao, d.retificacao});
    if (d.tipo == QLatin1String("2")) {
        modBancoDados::ExecutaSql(QStringLiteral("INSERT INTO VRT_MENSAL (ID_VRT_MICRO, DT_REFERENCIA_VRT) VALUES (?, ?)"),
                                  {d.id, d.referencia});
    } else {
        modBancoDados::ExecutaSql(
            QStringLiteral("INSERT INTO VRT_INDIVIDUAL (ID_VRT_MICRO, IN_SAIDA_ALC_AO) VALUES (?, 'N')"), {d.id});
        modBancoDados::ExecutaSql(QStringLiteral("INSERT INTO NOTA_FISCAL_SAIDA (ID_VRT_MICRO, NR_NF_SAIDA, "
                                                 "NR_SERIE_NF_SAIDA, DT_EMISS_NF_SAIDA, DT_SAIDA_NF_SAIDA, "
                                                 "CD_OP_FISCAL, CD_UF_DESTINO) VALUES (?, ?, ?, '01032009', "
                                                 "'02032009', '5101', 'SP')"),
                                  {d.id, d.nota, d.serie});
    }
}

// `quantidade` monthly declarations numbered from 1, in one transaction.
inline void insereMuitas(int quantidade)
{
    modBancoDados::Transacao t;
    for (int i = 1; i <= quantidade; ++i) {
        Declaracao d;
        d.id = QStringLiteral("%1/09").arg(i, 5, 10, QLatin1Char('0'));
        d.tipo = i % 2 ? QStringLiteral("2") : QStringLiteral("1");
        d.cnpj = QStringLiteral("%1").arg(11222333000100LL + i, 14, 10, QLatin1Char('0'));
        d.criacao = QStringLiteral("2009-%1-%2").arg(1 + i % 12, 2, 10, QLatin1Char('0')).arg(1 + i % 28, 2, 10,
                                                                                             QLatin1Char('0'));
        d.referencia = QStringLiteral("%1%2").arg(1 + i % 12, 2, 10, QLatin1Char('0')).arg(2009);
        d.nota = QStringLiteral("%1").arg(i, 6, 10, QLatin1Char('0'));
        insere(d);
    }
    t.confirma();
}

}  // namespace DeclaracoesTeste
