#include "gui/items/AbaPIcomPPB.h"

#include "core/store/ItensPIcomPPB.h"
#include "gui/blocks/QuatroBotoes.h"
#include "gui/items/BlocosPIcomPPB.h"
#include "gui/items/CabecalhoNota.h"
#include "gui/items/CamposItem.h"
#include "gui/widgets/DigitField.h"

#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

using namespace BlocosPIcomPPB;

AbaPIcomPPB::AbaPIcomPPB(const ContextoItens& contexto, QWidget* parent)
    : AbaItens(contexto, QStringLiteral("tabPIcomPPB_Individual"), parent)
{
    const bool ind = contexto.individual;
    const QString sufixo = ind ? QStringLiteral("_tabPIcomPPB_Individual") : QStringLiteral("_tabPIcomPPB_Mensal");
    setObjectName(ind ? QStringLiteral("tabPIcomPPBIndividual") : QStringLiteral("fraPIcomPPBMensal"));

    auto* quadro = new QGroupBox(ind ? QStringLiteral("Doc. de Redução") : QStringLiteral("Documento de Redução"), this);
    auto* opcoes = new QHBoxLayout(quadro);
    optDCR = new QRadioButton(QStringLiteral("DCR"), quadro);
    optDCR->setObjectName(QStringLiteral("optDCR") + sufixo);
    optDCRE = new QRadioButton(QStringLiteral("DCR-E"), quadro);
    optDCRE->setObjectName(QStringLiteral("optDCRE") + sufixo);
    opcoes->addWidget(optDCR);
    opcoes->addWidget(optDCRE);
    opcoes->addStretch();
    corpo()->addWidget(quadro);

    m_botoes = new QuatroBotoes(ind ? QStringLiteral("cmd%1_tabPIcomPPB_Individual") : QStringLiteral("cmd%1_tabPIcomPPB"),
                                this);
    // The name this button has always had in the individual editor.
    if (ind)
        m_botoes->cmdLimpar->setObjectName(QStringLiteral("cmdLimpar_TabPIcomPPB_Individual"));

    DigitField* item = nullptr;
    if (ind) {
        item = new DigitField(CampoItem, 3, cabecalho());
        item->setZeroMessage(ZeroMessage::GreaterThanZero);
        cabecalho()->grade()->addWidget(new QLabel(QStringLiteral("Item:"), cabecalho()), 1, 0);
        cabecalho()->grade()->addWidget(item, 1, 1);
    }
    auto constroiBloco = [&](bool dcr, QWidget*& area) {
        auto* b = new ExecutorBloco(Descricao(ind, dcr ? TipoDCR : TipoDCRE), [this] { return pai(); }, this);
        if (item)
            b->adotaCampo(CampoItem, item);
        b->adotaBotoes(m_botoes);
        area = new QWidget(this);
        area->setObjectName(dcr ? QStringLiteral("fraDCR") + sufixo : QStringLiteral("fraDCRE") + sufixo);
        b->constroi(area);
        corpo()->addWidget(area, 1);
        CamposItem::registraDestinos(*b);
        return b;
    };
    m_dcre = constroiBloco(false, m_areaDcre);
    m_dcr = constroiBloco(true, m_areaDcr);
    corpo()->addWidget(m_botoes);

    connect(m_botoes->cmdIncluir, &QPushButton::clicked, this, [this] { blocoEscolhido()->incluir(); });
    connect(m_botoes->cmdAlterar, &QPushButton::clicked, this, [this] { blocoEscolhido()->alterar(); });
    connect(m_botoes->cmdExcluir, &QPushButton::clicked, this, [this] { blocoEscolhido()->excluir(); });
    connect(m_botoes->cmdLimpar, &QPushButton::clicked, this, [this] { blocoEscolhido()->limpar(); });
    connect(optDCR, &QRadioButton::clicked, this, [this] { escolhe(true); });
    connect(optDCRE, &QRadioButton::clicked, this, [this] { escolhe(false); });
    escolhe(false);
}

ExecutorBloco* AbaPIcomPPB::blocoEscolhido() const
{
    return optDCR->isChecked() ? m_dcr : m_dcre;
}

void AbaPIcomPPB::escolhe(bool dcr)
{
    mostra(dcr);
    blocoEscolhido()->carrega();
}

// The option's frame and grid shown, the other's hidden; the grids are left as they are.
void AbaPIcomPPB::mostra(bool dcr)
{
    (dcr ? optDCR : optDCRE)->setChecked(true);
    m_areaDcr->setVisible(dcr);
    m_areaDcre->setVisible(!dcr);
}

bool AbaPIcomPPB::temItens(const QString& tipo) const
{
    return individual() ? ItensPIcomPPB::TemLinhasIndividual(pai().toLongLong(), tipo)
                        : ItensPIcomPPB::TemLinhasMensal(pai().toString(), tipo);
}

void AbaPIcomPPB::carrega()
{
    m_dcr->carrega();
    const bool temDcr = temItens(TipoDCR);
    m_dcre->carrega();
    const bool temDcre = temItens(TipoDCRE);
    // Both grids were just loaded (or will be when shown): choosing the option only shows one of them.
    if (individual())
        mostra(!(temDcre && !temDcr));
    else if (temDcre)
        mostra(false);
    else if (temDcr)
        mostra(true);
}

void AbaPIcomPPB::repopula()
{
    for (ExecutorBloco* b : {m_dcre, m_dcr}) {
        b->carrega();
        b->limpa();
    }
}

void AbaPIcomPPB::aoEntrar()
{
    AbaItens::aoEntrar();
    if (individual())
        escolhe(false);
}
