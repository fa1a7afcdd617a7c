#pragma once
// The exit invoice of an individual declaration, on its tab "Dados Gerais": the invoice ("Nota Fiscal de
// Saída"), the person it goes to ("Destinatário", by CNPJ or CPF) and the place ("Destino": UF and ALC).
#include "core/store/DadosGeraisVrt.h"

#include <QWidget>

class DigitField;
class MaskedField;
class TextField;
class QCheckBox;
class QComboBox;
class QLabel;
class QRadioButton;

class AbaNotaSaida : public QWidget {
    Q_OBJECT
public:
    AbaNotaSaida(const bool* carregando, QWidget* parent = nullptr);

    // The checks of ValidaDadosGerais that concern the invoice: number, series, issue date, person, UF (before
    // the bank data), then CFOP, dates and the person's number (after them).
    bool validaCabecalho();
    bool validaRegras();

    NotaSaida daTela() const;
    QString alc() const;
    // Fills the fields from a stored invoice; a CPF stands under the mask "###.###.###/##".
    void mostra(const NotaSaida& n, const QString& alc);
    bool difere(const NotaSaida& copia, const QString& alcCopia) const;

    // Fills the UF list from the reference table.
    void carregaUf();

    MaskedField* mskDadosGeraisIndividual[3] = {};  // 0 issue date, 1 exit date, 2 person's number
    DigitField* txtNumero = nullptr;               // "mskDadosGeraisIndividual(3)"
    TextField* txtSerie = nullptr;                 // "txtDadosGeraisIndividual(1)"
    DigitField* txtCfop = nullptr;                 // "txtDadosGeraisIndividual(2)"
    TextField* txtNomeUf = nullptr;                // "txtDadosGeraisIndividual(6)"
    QRadioButton* optCNPJ_tabDadosGerais_Individual = nullptr;
    QRadioButton* optCPF_tabDadosGerais_Individual = nullptr;
    QLabel* lblValorCNPJouCPF_tabDadosGerais_Individual = nullptr;
    QComboBox* cboUF = nullptr;
    QCheckBox* ChkMand_Retif2 = nullptr;           // "ChkMand_Retif(2)", caption "ALC"

private:
    void constroiNota();
    void constroiDestino();
    void ligaRegras();
    void escolhePessoa(bool cpf);
    void mostraNomeUf();
    bool falha(const QString& texto, QWidget* campo);
    bool regraDataEmissao();
    bool regraDataSaida();
    bool regraCfop(bool soAno);
    bool regraPessoa();
    QString anoEmissao() const;

    const bool* m_carregando;
};
