#include "gui/items/CabecalhoProduto.h"

#include "core/lookups/BuscaProduto.h"
#include "core/session/MsgBox.h"
#include "core/store/ItensDeclaracao.h"
#include "gui/assistants/DestinosEscolha.h"
#include "gui/assistants/frmAssistNCM.h"
#include "gui/assistants/frmAssistenteCCI.h"
#include "gui/widgets/NcmField.h"
#include "gui/widgets/ProductCodeField.h"
#include "gui/widgets/TextField.h"

#include <QComboBox>
#include <QGridLayout>
#include <QLabel>
#include <QPushButton>

CabecalhoProduto::CabecalhoProduto(const NomesCabecalho& n, QWidget* parent) : QWidget(parent)
{
    auto* g = new QGridLayout(this);
    g->setContentsMargins(0, 0, 0, 0);
    campoNcm = new NcmField(n.ncm, this);
    campoDescricaoNcm = new TextField(n.descricaoNcm, 80, this);
    campoUnidadeEstatistica = new TextField(n.unidadeEstatistica, 20, this);
    campoDescricaoNcm->setReadOnly(true);
    campoUnidadeEstatistica->setReadOnly(true);
    campoNcm->setTargets(campoDescricaoNcm, campoUnidadeEstatistica);
    campoCodigo = new ProductCodeField(n.codigo, this);
    campoDescricao = new TextField(n.descricao, 80, this);
    campoDescricao->setReadOnly(true);
    campoCodigo->setDescriptionField(campoDescricao);
    cboUnidade = new QComboBox(this);
    cboUnidade->setObjectName(n.unidade);
    cmdNcm = new QPushButton(QStringLiteral("..."), this);
    cmdNcm->setObjectName(n.botaoNcm);
    cmdProduto = new QPushButton(QStringLiteral("..."), this);
    cmdProduto->setObjectName(n.botaoProduto);
    for (QPushButton* b : {cmdNcm, cmdProduto})
        b->setMaximumWidth(30);

    const auto poe = [this, g](const QString& rotulo, QWidget* w, int linha, int coluna, int largura = 1) {
        auto* r = new QLabel(rotulo, this);
        r->setBuddy(w);
        g->addWidget(r, linha, coluna, 1, largura);
        g->addWidget(w, linha + 1, coluna, 1, largura);
    };
    poe(QStringLiteral("NCM"), campoNcm, 0, 0);
    g->addWidget(cmdNcm, 1, 1);
    poe(QString::fromUtf8("Descrição NCM"), campoDescricaoNcm, 0, 2);
    poe(QString::fromUtf8("Unidade estatística"), campoUnidadeEstatistica, 0, 3);
    poe(QString::fromUtf8("Código do produto"), campoCodigo, 2, 0);
    g->addWidget(cmdProduto, 3, 1);
    poe(QString::fromUtf8("Descrição do produto"), campoDescricao, 2, 2);
    poe(n.rotuloUnidade, cboUnidade, 2, 3);
    g->setColumnStretch(2, 1);

    DestinosEscolha::ncm().registra(n.chave, campoNcm, campoUnidadeEstatistica, this);
    DestinosEscolha::produto().registra(n.chave, campoCodigo, campoDescricao, this);
    connect(cmdNcm, &QPushButton::clicked, this, [this, k = n.chave] { frmAssistNCM::Escolhe(k, window()); });
    connect(cmdProduto, &QPushButton::clicked, this, [this, k = n.chave] { frmAssistenteCCI::Escolhe(k, window()); });
    carregaUnidades();
}

void CabecalhoProduto::carregaUnidades()
{
    const QString escolha = cboUnidade->currentText();
    cboUnidade->clear();
    cboUnidade->addItems(ItensDeclaracao::Unidades());
    cboUnidade->setCurrentIndex(escolha.isEmpty() ? -1 : cboUnidade->findText(escolha));
}

QString CabecalhoProduto::ncm() const
{
    return campoNcm->digits();
}

QString CabecalhoProduto::codigo() const
{
    return campoCodigo->text();
}

QString CabecalhoProduto::descricao() const
{
    return campoDescricao->text();
}

QString CabecalhoProduto::unidade() const
{
    return cboUnidade->currentIndex() >= 0 ? cboUnidade->currentText() : QString();
}

bool CabecalhoProduto::valida()
{
    const auto recusa = [](const QString& texto, QWidget* foco) {
        MsgBox(texto, Msg::OKOnly | Msg::Critical);
        foco->setFocus(Qt::OtherFocusReason);
        return false;
    };
    if (campoNcm->isBlank())
        return recusa(QString::fromUtf8("O campo número da NCM deve ser preenchido."), cmdNcm);
    if (campoDescricaoNcm->text().trimmed().isEmpty())
        return recusa(QString::fromUtf8("O campo número da NCM não possui um código válido."), cmdNcm);
    if (codigo().trimmed().isEmpty())
        return recusa(QString::fromUtf8("O campo código do produto deve ser selecionado."), cmdProduto);
    const QString nome = modVRTPLN::BuscaProduto(codigo().trimmed(), true);
    if (nome.isEmpty())
        return recusa(QString::fromUtf8("O campo código do Produto não possui um código válido."), cmdProduto);
    campoDescricao->setText(nome);
    if (cboUnidade->currentIndex() < 0)
        return recusa(QString::fromUtf8("O campo unidade de medida comercial deve ser selecionado."), cboUnidade);
    return true;
}

void CabecalhoProduto::limpa()
{
    campoNcm->clear();
    campoDescricaoNcm->clear();
    campoUnidadeEstatistica->clear();
    campoCodigo->clear();
    campoDescricao->clear();
    cboUnidade->setCurrentIndex(-1);
}

void CabecalhoProduto::mostra(const QString& ncm, const QString& codigo, const QString& nome, const QString& unidade)
{
    campoNcm->setDigits(ncm);
    campoCodigo->setText(codigo);
    campoDescricao->setText(nome);
    int i = -1;
    for (int k = 0; k < cboUnidade->count() && i < 0; ++k)
        if (cboUnidade->itemText(k).trimmed() == unidade.trimmed())
            i = k;
    cboUnidade->setCurrentIndex(i);
}
