#pragma once
// The NCM lookup every NCM field of the program shares.
#include <QString>

namespace Funcoes {

// Reads the NCM_ITEM row of an eight-digit code. True when there is one; then `descricao` and
// `unidadeEstatistica` get DESCR_NCM_PRODUTO and NM_UNID_MED_EST.
bool BuscaNcm(const QString& codigo, QString* descricao = nullptr, QString* unidadeEstatistica = nullptr);

}  // namespace Funcoes
