#pragma once
// The read-only head of the exit invoice on each item tab of the individual editor: frame "Nota Fiscal de
// Saída" with "Número:", "Série:", "Data de emissão:". The labels that show the values are named by the tab:
//     cabecalho = new CabecalhoNota("tab100Nacional_Individual", this);  // lblNumero_tab100Nacional_Individual ...
//     cabecalho->mostra(nota);   // when the tab comes up (AbaItens::aoEntrar does it)
#include "core/store/DadosGeraisVrt.h"

#include <QGroupBox>

class QLabel;
class QGridLayout;

class CabecalhoNota : public QGroupBox {
    Q_OBJECT
public:
    CabecalhoNota(const QString& sufixo, QWidget* parent = nullptr);

    // Number, series, and the issue date through "00/00/0000".
    void mostra(const NotaSaida& nota);
    // The frame's grid, where a tab may put its item field beside the head.
    QGridLayout* grade() const { return m_grade; }

    QLabel* lblNumero = nullptr;
    QLabel* lblSerie = nullptr;
    QLabel* lblData = nullptr;

private:
    QGridLayout* m_grade = nullptr;
};
