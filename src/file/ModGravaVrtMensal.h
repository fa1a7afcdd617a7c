#pragma once
// The monthly reader: turns the item records 11 to 41 of a monthly file into rows of the monthly tables,
// under the current keys that the earlier records of the file left.
#include <QString>

class CadastrosLeitura;
class ComandosPreparados;
class RegistroLido;
struct EstadoLeitura;

class ModGravaVrtMensal {
public:
    ModGravaVrtMensal(EstadoLeitura& estado, ComandosPreparados& comandos, CadastrosLeitura& cadastros);
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

    EstadoLeitura& m_estado;
    ComandosPreparados& m_comandos;
    CadastrosLeitura& m_cadastros;
};
