#include "gui/items/CabecalhoNota.h"

#include "core/rules/FormatoNumero.h"

#include <QGridLayout>
#include <QLabel>

CabecalhoNota::CabecalhoNota(const QString& sufixo, QWidget* parent)
    : QGroupBox(QStringLiteral("Nota Fiscal de Saída"), parent)
{
    setObjectName(QStringLiteral("fraNotaFiscalSaida_") + sufixo);
    m_grade = new QGridLayout(this);
    auto valor = [this, &sufixo](const char* prefixo, const char* rotulo, int coluna) {
        m_grade->addWidget(new QLabel(QString::fromUtf8(rotulo), this), 0, coluna);
        auto* l = new QLabel(this);
        l->setObjectName(QLatin1String(prefixo) + sufixo);
        l->setMinimumWidth(l->fontMetrics().horizontalAdvance(QStringLiteral("00/00/00000")));
        l->setFrameShape(QFrame::StyledPanel);
        m_grade->addWidget(l, 0, coluna + 1);
        return l;
    };
    lblNumero = valor("lblNumero_", "Número:", 0);
    lblSerie = valor("lblSerie_", "Série:", 2);
    lblData = valor("lblData_", "Data de emissão:", 4);
    m_grade->setColumnStretch(6, 1);
}

void CabecalhoNota::mostra(const NotaSaida& nota)
{
    lblNumero->setText(nota.numero);
    lblSerie->setText(nota.serie);
    lblData->setText(Funcoes::FormataMascara(nota.emissao, QStringLiteral("00/00/0000")));
}
