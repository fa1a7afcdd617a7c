#pragma once
// The individual reader: turns the item records 11 to 41 of an individual file into rows of the invoice's
// tables, each record 11, 21, 31 and 41 a new item of the invoice.
#include <QString>
#include <QVariant>

class CadastrosLeitura;
class ComandosPreparados;
class RegistroLido;
struct EstadoLeitura;

class ModGravaVrtIndividual {
public:
    ModGravaVrtIndividual(EstadoLeitura& estado, ComandosPreparados& comandos, CadastrosLeitura& cadastros);
    // One line of type `tipo` (one of 11-14, 21, 31-36, 41). False, with its message shown, stops the reading.
    bool gravaRegistro(const QString& tipo, QString& linha);

private:
    bool registro11(const RegistroLido& r);
    bool registro12(const RegistroLido& r);
    bool registro13(const RegistroLido& r);
    bool registro14(const RegistroLido& r);
    bool registro21(const RegistroLido& r);
    bool registro31(const RegistroLido& r);
    bool registro32(const RegistroLido& r);
    bool registro33(const RegistroLido& r);
    bool registro34(const RegistroLido& r);
    bool registro35(const RegistroLido& r);
    bool registro36(const RegistroLido& r);
    bool registro41(const RegistroLido& r);
    // The row of ITEM_NFS that every record 11, 21, 31 and 41 begins with; false with `mensagem` without a key.
    bool novoItem(const RegistroLido& r, const QString& ncm, const QString& modalidade, const QString& mensagem);

    EstadoLeitura& m_estado;
    ComandosPreparados& m_comandos;
    CadastrosLeitura& m_cadastros;
};
