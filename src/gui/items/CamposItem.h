#pragma once
// The pieces every item tab describes its blocks with, so that the NCM field, the product code, the unit and
// place lists, the value families, the item number and the pickers behave the same on every tab. A tab builds
// its DescricaoBloco from these and lists its checks in order:
//
//     d.campos = {CamposItem::ncm("mskNumNCM100", "NCM", "cmdAssistenteNCM_tab100Nacional_Mensal",
//                                 "produto100NacionalMensal", "txtDescrNCM100", "txtUnidMedEstatistica", false),
//                 CamposItem::descricao("txtDescrNCM100", "Descrição NCM", {}), ...};
//     d.regras = {CamposItem::vazio("mskNumNCM100", "O campo número da NCM deve ser preenchido.",
//                                   "cmdAssistenteNCM_tab100Nacional_Mensal"),
//                 CamposItem::produtoValido("txtCodProd100N", "txtDescrProd100N", "cmdAssistente..."), ...};
//     CamposItem::ligaEscolhas(d);                 // picker buttons open frmAssistNCM / frmAssistenteCCI
//     ...bloco->constroi(area); CamposItem::registraDestinos(*bloco);   // the pickers write into the fields
//
// Values: quantities "0.00000", total values "0.00", unit values "0.0000000" as the value families give them.
#include "gui/blocks/ExecutorBloco.h"

#include <functional>

namespace CamposItem {

// The zero messages of the two editors.
QString MsgZero(bool individual);

// Fields. `linha` is the row of the block's fields.
CampoBloco ncm(const QString& nome, const QString& rotulo, const QString& botao, const QString& chamador,
               const QString& descricao, const QString& unidadeEstatistica, bool individual,
               const QString& coluna, int linha = 0);
CampoBloco produto(const QString& nome, const QString& rotulo, const QString& botao, const QString& chamador,
                   const QString& descricao, const QString& coluna, int linha = 0);
// A read-only text filled by a lookup (description, statistical unit); `coluna` "" when it is not written.
CampoBloco descricao(const QString& nome, const QString& rotulo, const QString& coluna, int largura = 80,
                     int linha = 0);
// The commercial unit list (NM_MEDIDA, by name); the text is what is stored.
CampoBloco unidade(const QString& nome, const QString& rotulo, const QString& coluna, int linha = 0);
// The destination place list (NM_LOCAL_DESTINO shown, CD_LOCAL_DESTINO kept).
CampoBloco local(const QString& nome, const QString& rotulo, const QString& coluna, int linha = 0);
CampoBloco valor(const QString& nome, const QString& rotulo, DecimalField::Family familia, const QString& formato,
                 const QString& coluna, const QString& msgZero, int linha = 0);
// The item number of the individual editor: digits, at most 3, zero refused on leaving.
CampoBloco numeroItem(const QString& nome, const QString& coluna, int linha = 0);

// Entries of the unit and place lists, for DescricaoBloco::opcoes.
QList<OpcaoLista> OpcoesUnidade();
QList<OpcaoLista> OpcoesLocal();

// Checks. `foco` "" puts the focus on the field itself.
RegraBloco vazio(const QString& campo, const QString& msg, const QString& foco = QString());
// The product code names a product (BuscaProduto, exact); when it does the description is refreshed.
RegraBloco produtoValido(const QString& campo, const QString& descricao, const QString& foco,
                         const QString& msg = QStringLiteral("O campo código do Produto não possui um código válido."));
// The NCM and product checks every item tab makes first, in their order: NCM empty, NCM unknown (focus on the
// NCM picker), product code empty, product code unknown (focus on the product picker).
QList<RegraBloco> regrasProduto(const QString& ncm, const QString& descricaoNcm, const QString& botaoNcm,
                                const QString& codigo, const QString& descricao, const QString& botaoProduto);
// The commercial unit list left unchosen.
RegraBloco unidadeEscolhida(const QString& campo);
// The item number stands on no other item of the invoice, in any modality; at Alterar only when it differs
// from the chosen row's `colunaGrade`.
RegraBloco numeroItemLivre(const QString& campo, const QString& colunaGrade);
// A check only for one operation.
RegraBloco so(Operacao op, RegraBloco regra);

// Picker buttons: frmAssistNCM for an Ncm field, frmAssistenteCCI for a Produto field, with the field's key.
void ligaEscolhas(DescricaoBloco& d);
// Registers the block's fields under their caller keys, so that a picker writes into them.
void registraDestinos(ExecutorBloco& bloco);

}  // namespace CamposItem
