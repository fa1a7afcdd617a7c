#pragma once
// The monthly writer: records 00 to 03 and the items of a monthly declaration, in the order and nesting of the
// format (items by modality; per destination for modalities 1 and 2; per input and destination for modality 3).
class CabecalhoVrt;
class GravacaoVrt;

namespace modTrataVrtMensal {

// Writes the declaration into the run's folder. A file error shows the monthly writer's message and sets the
// run's failure flag, but only for its three known errors: disk full, no permission, file in use. Any other
// file error is left without a message and the run reports success, as the system does.
void GravaVrtMensal(const CabecalhoVrt& cabecalho, GravacaoVrt& run);

}  // namespace modTrataVrtMensal
