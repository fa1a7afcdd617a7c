#pragma once
// The two entry blocks of the difference values, as data: index 0 the court order (VALORES_DIVER_MANDADO),
// index 1 the retification (VALORES_DIVER_RETIF). Same fields, grid and messages; the table, its columns and
// the value type codes differ.
#include "gui/blocks/ExecutorBloco.h"

#include <functional>

namespace BlocosValores {

// `temProcesso` tells whether the restitution process is filled: on the retification tab "VRT" and its
// "Taxa de Utilização" are offered only then.
DescricaoBloco Descricao(int indice, std::function<bool()> temProcesso);

// The entries of the two lists, for a tab and, for descriptions, a modality code ("9", "1", "2", "3").
QList<OpcaoLista> Modalidades(int indice, bool temProcesso);
QList<OpcaoLista> Descricoes(int indice, const QString& modalidade, bool temProcesso);

}  // namespace BlocosValores
