#pragma once
// The head of a declaration as the editors keep it: the row of VRT, the row of its type's table (VRT_MENSAL or
// VRT_INDIVIDUAL) and, for an individual declaration, its exit invoice (NOTA_FISCAL_SAIDA). The editors read it
// when they open a declaration and write it when the general data change; these are the only statements that
// touch those rows from a screen.
#include <QString>

struct DadosGerais {
    QString idVrt;                    // "NNNNN/AA"; empty until first written
    QString tipo;                     // CD_TIPO_VRT: "1" individual, "2" monthly
    QString nrVrt;                    // number to rectify, digits
    QString cnpj;                     // digits
    QString indMandado = QStringLiteral("N");
    QString indRetificacao = QStringLiteral("N");
    QString banco;
    QString agencia;
    QString conta;
    QString processo;                 // digits, or ""
    QString indRestituicao = QStringLiteral("N");
    QString inscricao;                // individual only
    QString referencia;               // monthly only: month and year, "mmyyyy"
    QString alc = QStringLiteral("N");  // individual only: IN_SAIDA_ALC_AO

    bool individual() const { return tipo == QLatin1String("1"); }
};

struct NotaSaida {
    qint64 idNfs = 0;
    QString numero;
    QString serie;
    QString emissao;                  // ddmmyyyy
    QString saida;                    // ddmmyyyy
    QString cfop;
    QString tipoDestinatario;         // "1" CNPJ, "2" CPF
    QString destinatario;             // digits
    QString uf;
};

namespace DadosGeraisVrt {

// Reads the head of `id` (a null column gives ""); false when VRT has no such row. With `nota`, an individual
// declaration's invoice is read too.
bool Le(const QString& id, DadosGerais& dados, NotaSaida* nota = nullptr);

// The new rows of a declaration whose identification is already in dados.idVrt: VRT, then VRT_MENSAL or
// VRT_INDIVIDUAL and NOTA_FISCAL_SAIDA, whose new ID_NFS goes into nota->idNfs. DT_REGISTRO_VRT_MICRO is left
// to the column's default, today.
void Insere(const DadosGerais& dados, NotaSaida* nota = nullptr);

// Rewrites the head of dados.idVrt in the same tables. NR_MANDADO_JUDIC is always written empty.
void Atualiza(const DadosGerais& dados, const NotaSaida* nota = nullptr);

// The state name of a UF code, "" when unknown.
QString NomeUf(const QString& uf);

}  // namespace DadosGeraisVrt
