#pragma once
// The monthly reader: turns the item records 11 to 41 of a monthly file into rows of the monthly tables,
// under the current keys that the earlier records of the file left. Each row's statement and values come from
// the record's layout (InsercaoRegistro); what the reader does beyond that is in ExcecoesLeitura.
#include "core/file/reading/LeitorItens.h"

#include <QString>
#include <memory>

class ModGravaVrtMensal : public LeitorItens {
public:
    ModGravaVrtMensal(EstadoLeitura& estado, ComandosPreparados& comandos, CadastrosLeitura& cadastros);
    ~ModGravaVrtMensal() override;

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
    // Product, unit and NCM checks of records 11, 31 and 41, with their messages.
    bool registraProduto(const RegistroLido& r, const QString& tipo, bool confereNcm);

    struct Insercoes;
    std::unique_ptr<Insercoes> m_insercoes;
};
