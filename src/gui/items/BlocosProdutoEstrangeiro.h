#pragma once
// The page "Produto" of the foreign-product tab, as blocks of the item foundation. Monthly: a product is one item
// of the declaration spread over destinations, with one row of differing rates for all of them; a later
// destination repeats the unit, the NCM and the rates of the first, and a change of a row with other
// destinations must agree with them. Individual: an item of the exit invoice, whose NCM, unit and rates must
// agree with the other items of the product in the declaration. The two rates with their checks stand in
// frames of their own (AliquotaDiferente) that the block adopts:
//
//     TaxasProduto taxas = BlocosProdutoEstrangeiro::Taxas(individual, pagina);
//     auto* bloco = new ExecutorBloco(BlocosProdutoEstrangeiro::Descricao(contexto, taxas), pai, pagina);
//     taxas.ii->entregaA(*bloco); taxas.ipi->entregaA(*bloco);
//     bloco->constroi(pagina);
#include "gui/blocks/ExecutorBloco.h"
#include "gui/items/AbaItens.h"

class AliquotaDiferente;

struct TaxasProduto {
    AliquotaDiferente* ii = nullptr;
    AliquotaDiferente* ipi = nullptr;
};

namespace BlocosProdutoEstrangeiro {

// The two rate frames of an editor, with its names.
TaxasProduto Taxas(bool individual, QWidget* parent);
// The block of the editor the context names.
DescricaoBloco Descricao(const ContextoItens& contexto, const TaxasProduto& taxas);

}  // namespace BlocosProdutoEstrangeiro
