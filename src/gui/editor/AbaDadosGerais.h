#pragma once
// The head of a declaration on the tab "Dados Gerais": who declares (Internador), the reference month of a
// monthly declaration, how it is paid (Pagamento) and the two boxes "Mandado Judicial" and "Retificação". The
// number to rectify and the restitution process stand on the sub-tab "Retificação" of the values; this class
// owns them and hands their frame over (quadroRetificacao). The checks of the monthly and of the individual
// editor differ in order and texts; `individual` chooses.
#include "core/store/DadosGeraisVrt.h"

#include <QWidget>

class DigitField;
class MaskedField;
class QCheckBox;
class QGroupBox;
class AbaNotaSaida;

class AbaDadosGerais : public QWidget {
    Q_OBJECT
public:
    AbaDadosGerais(bool individual, const bool* carregando, QWidget* parent = nullptr);

    // The exit invoice of the individual editor, whose checks run in the middle of ValidaDadosGerais.
    void defineNota(AbaNotaSaida* nota) { m_nota = nota; }

    bool ValidaDadosGerais();
    // The monthly editor's parts of ValidaDadosGerais, also run by the fields' own handlers.
    bool ValidaCNPJInternador();
    bool ValidaMesReferencia();
    bool ValidaAnoReferencia();
    bool ValidaProcessoRestituicao();

    // The head as the screen shows it (identification and type left empty).
    DadosGerais daTela() const;
    // Fills the fields from a stored head.
    void mostra(const DadosGerais& d);
    // True when the screen differs from `copia` in a value the declaration keeps.
    bool difere(const DadosGerais& copia) const;

    // Fields, named as the system names them.
    MaskedField* mskDadosGerais[4] = {};
    DigitField* mskInscricaoEstadual = nullptr;  // "mskDadosGerais(2)" of the individual editor
    DigitField* txtDadosGerais[4] = {};          // 1 bank, 2 agency, 3 account
    DigitField* txtDadosGeraisMensal[2] = {};    // 0 month, 1 year
    QCheckBox* ChkMand_Retif[2] = {};
    QCheckBox* chkSimRest = nullptr;
    QGroupBox* fraDGMensal = nullptr;
    QGroupBox* fraProcessoAdministrativo = nullptr;

    // The number to rectify and the restitution, shown on the sub-tab "Retificação".
    QWidget* quadroRetificacao() const { return m_retificacao; }

private:
    void constroiInternador(QWidget* area);
    void constroiPagamento(QWidget* area);
    void constroiRetificacao();
    void ligaRegras();
    bool falha(const QString& texto, QWidget* campo);
    bool validaIndividual();
    bool validaNumeroVrt(bool aoSair);
    bool validaBancarios();

    bool m_individual;
    const bool* m_carregando;
    AbaNotaSaida* m_nota = nullptr;
    QWidget* m_retificacao = nullptr;
};
