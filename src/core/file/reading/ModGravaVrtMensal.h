#pragma once
// The monthly reader: turns the item records 11 to 41 of a monthly file into rows of the monthly tables,
// under the current keys that the earlier records of the file left.
#include "core/file/reading/LeitorItens.h"

#include <QString>

class ModGravaVrtMensal : public LeitorItens {
public:
    ModGravaVrtMensal(EstadoLeitura& estado, ComandosPreparados& comandos, CadastrosLeitura& cadastros);

private:
    bool registro11(const RegistroLido& r) override;
    bool registro12(const RegistroLido& r) override;
    bool registro13(const RegistroLido& r) override;
    bool registro14(const RegistroLido& r) override;
    bool registro21(const RegistroLido& r) override;
    bool registro31(const RegistroLido& r) override;
    bool registro32(const RegistroLido& r) override;
    bool registro33(const RegistroLido& r) override;
    bool registro34(const RegistroLido& r) override;
    bool registro35(const RegistroLido& r) override;
    bool registro36(const RegistroLido& r) override;
    bool registro41(const RegistroLido& r) override;
};
