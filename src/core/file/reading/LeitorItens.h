#pragma once
// What the individual and the monthly readers of the item records share: each line checked against the size
// of its record's layout in the declaration's type, then handed to that reader's record 11 to 41.
#include "core/file/layout/LayoutRegistro.h"

#include <QString>

class CadastrosLeitura;
class ComandosPreparados;
class RegistroLido;
struct EstadoLeitura;

class LeitorItens {
public:
    virtual ~LeitorItens() = default;
    // One line of type `tipo` (one of 11-14, 21, 31-36, 41). False, with its message shown, stops the reading.
    bool leRegistro(const QString& tipo, QString& linha);

protected:
    LeitorItens(TipoDeclaracao declaracao, EstadoLeitura& estado, ComandosPreparados& comandos,
                    CadastrosLeitura& cadastros);

    virtual bool registro11(const RegistroLido& r) = 0;
    virtual bool registro12(const RegistroLido& r) = 0;
    virtual bool registro13(const RegistroLido& r) = 0;
    virtual bool registro14(const RegistroLido& r) = 0;
    virtual bool registro21(const RegistroLido& r) = 0;
    virtual bool registro31(const RegistroLido& r) = 0;
    virtual bool registro32(const RegistroLido& r) = 0;
    virtual bool registro33(const RegistroLido& r) = 0;
    virtual bool registro34(const RegistroLido& r) = 0;
    virtual bool registro35(const RegistroLido& r) = 0;
    virtual bool registro36(const RegistroLido& r) = 0;
    virtual bool registro41(const RegistroLido& r) = 0;

    EstadoLeitura& m_estado;
    ComandosPreparados& m_comandos;
    CadastrosLeitura& m_cadastros;

private:
    TipoDeclaracao m_declaracao;
};
