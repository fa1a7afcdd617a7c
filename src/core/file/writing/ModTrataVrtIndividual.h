#pragma once
// The individual writer: records 00 to 03 and the items of the declaration's exit invoice, each item by its
// modality's table, with the invoice's destination code where a monthly file has its destination rows.
class CabecalhoVrt;
class GravacaoVrt;

namespace ModTrataVrtIndividual {

// Writes the declaration into the run's folder. Every file error shows a message and sets the run's failure
// flag: disk full and no permission have their own texts; any other error, a file in use included, shows
// "Ocorreu um erro na aplicação!" with the error's description, as the system does.
void GravaVrtIndividual(const CabecalhoVrt& cabecalho, GravacaoVrt& run);

}  // namespace ModTrataVrtIndividual
