#pragma once
// The entry blocks of the tab "PI sem PPB", as data: the product (with its destination in the monthly editor)
// and the input of a product, with their rates that differ from the TEC and the TIPI.
//
//     auto* produto = new ExecutorBloco(BlocosPIsemPPB::Produto(false, idVrt), pai, this);
//     auto* insumo = new ExecutorBloco(BlocosPIsemPPB::Insumo(false, idVrt), produtoEscolhido, this);
//     insumo->adotaCampo("cboDocProdutoPIsemPPB", lista);   // the product list, the first check's focus
#include "gui/blocks/ExecutorBloco.h"

#include <functional>

namespace BlocosPIsemPPB {

// The product list of the page "Insumos" in each editor.
QString ListaProduto(bool individual);

// `idVrt` gives the declaration's identification when a check runs.
DescricaoBloco Produto(bool individual, std::function<QString()> idVrt);
DescricaoBloco Insumo(bool individual, std::function<QString()> idVrt);

}  // namespace BlocosPIsemPPB
