#pragma once
// The head records 00 to 03 of a declaration file, kept as read, and the rows they give: VRT, VRT_MENSAL or
// VRT_INDIVIDUAL, the values of records 02 and 03 and, for an individual file, NOTA_FISCAL_SAIDA. Every row is
// generated from the head layouts (one InsercaoRegistro over the four records), each field taken by its own
// reading rule, so a head column is named once, in the layout. What no field carries is a named rule of
// ExcecoesLeitura: IND_RESTITUICAO and IND_RETIFICACAO, and the slots of records 02 and 03.
//
//   CabecalhoLido cabeca;
//   cabeca.defineLinha(1, linha00);  ...  cabeca.defineLinha(4, linha03);   // each checked by RegistrosCabeca
//   cabeca.grava(comandos, TipoDeclaracao::Mensal, id);
#include "core/file/layout/LayoutRegistro.h"
#include "core/file/layout/RegistroLido.h"

#include <QString>
#include <QVariantList>
#include <array>
#include <memory>

class ComandosPreparados;
class InsercaoRegistro;

class CabecalhoLido {
public:
    CabecalhoLido();
    ~CabecalhoLido();
    CabecalhoLido(const CabecalhoLido&) = delete;
    CabecalhoLido& operator=(const CabecalhoLido&) = delete;

    // The line of head record `numero` (1 to 4: records "00" to "03").
    void defineLinha(int numero, const QString& linha);
    // Head record `numero` as read.
    RegistroLido registro(int numero) const;
    // The rows of the declaration `id`: VRT, the row of its type, the values of records 02 and 03.
    void grava(ComandosPreparados& comandos, TipoDeclaracao declaracao, const QString& id) const;
    // The exit invoice of an individual declaration.
    void gravaNotaFiscal(ComandosPreparados& comandos, const QString& id) const;

private:
    struct Insercoes;
    QVariantList valores(const InsercaoRegistro& insercao, const QVariantList& antes) const;
    void gravaValoresMandado(ComandosPreparados& comandos, const QString& id) const;
    void gravaValoresRetif(ComandosPreparados& comandos, const QString& id) const;

    std::array<QString, 4> m_linhas;
    std::unique_ptr<Insercoes> m_insercoes;
};
