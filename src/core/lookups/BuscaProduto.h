#pragma once
// The product search the editors' code fields share: the description of a product, shown the moment a code is
// complete and names one product.
#include <QString>

namespace modVRTPLN {

// With `exato` false: the products whose code begins with `codigo`; with `exato` true: those whose code is
// `codigo`. Codes compare without regard to case, as the old engine compared text. Exactly one such row, whose
// code is `codigo` without regard to case, gives its NM_INT_PRODUTO; anything else gives "".
QString BuscaProduto(const QString& codigo, bool exato);

}  // namespace modVRTPLN
