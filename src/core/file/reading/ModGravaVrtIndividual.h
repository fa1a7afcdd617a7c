#pragma once
// The individual reader: turns the item records 11 to 41 of an individual file into rows of the invoice's
// tables, each record 11, 21, 31 and 41 a new item of the invoice.
#include "core/file/reading/LeitorItens.h"

#include <QString>
#include <QVariant>

class ModGravaVrtIndividual : public LeitorItens {
public:
    ModGravaVrtIndividual(EstadoLeitura& estado, ComandosPreparados& comandos, CadastrosLeitura& cadastros);

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
    // The row of ITEM_NFS that every record 11, 21, 31 and 41 begins with; false with `mensagem` without a key.
    bool novoItem(const RegistroLido& r, const QString& ncm, const QString& modalidade, const QString& mensagem);
};
