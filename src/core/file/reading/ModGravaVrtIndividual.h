#pragma once
// The individual reader: turns the item records 11 to 41 of an individual file into rows of the invoice's
// tables, each record 11, 21, 31 and 41 a new item of the invoice. Each row's statement and values come from
// the record's layout (InsercaoRegistro); what the reader does beyond that is in ExcecoesLeitura.
#include "core/file/reading/LeitorItens.h"

#include <QString>
#include <QVariant>
#include <memory>

class ModGravaVrtIndividual : public LeitorItens {
public:
    ModGravaVrtIndividual(EstadoLeitura& estado, ComandosPreparados& comandos, CadastrosLeitura& cadastros);
    ~ModGravaVrtIndividual() override;

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
    // Product, unit and NCM checks of records 11, 21, 31 and 41, with their messages; the name read is kept.
    bool registraProduto(const RegistroLido& r, const QString& tipo, bool confereNcm);
    // The row of ITEM_NFS that every record 11, 21, 31 and 41 begins with; false with `mensagem` without a key.
    bool novoItem(const RegistroLido& r, const QString& modalidade, const QString& mensagem);

    struct Insercoes;
    std::unique_ptr<Insercoes> m_insercoes;
};
