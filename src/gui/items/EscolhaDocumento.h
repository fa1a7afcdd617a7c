#pragma once
// What the two "Documento(s) de Origem" pages share: the choice of the document kind (DI, DSI, NF), one
// QuadroDocumento per kind for the page's origin and editor, and the four buttons that act on the kind in force.
// The page builds its own pickers, places these parts, and tells through two hooks when a kind may be chosen
// and which parent's lines decide that a place is left without documents.
//
//     m_docs = new EscolhaDocumento({Origem::Insumo, false, "Documento Entrada", "fraDocumentoEntrada_tabPIsemPPB",
//                                    "cmd%1_tabPIsemPPB", "cmdLimpar_TabPIsemPPB"}, this);
//     coluna->addWidget(m_docs->tipos);
//     coluna->addWidget(m_docs->botoes);
//     m_docs->poeQuadros(coluna);
#include "gui/items/MembroDocumento.h"

#include <QMap>
#include <QObject>
#include <QVariantList>
#include <functional>

class QBoxLayout;
class QGroupBox;
class QRadioButton;
class QuadroDocumento;
class QuatroBotoes;
class QWidget;

class EscolhaDocumento : public QObject {
    Q_OBJECT
public:
    struct Configuracao {
        Origem origem;
        bool individual;
        QString tituloTipos;   // the caption of the frame of the three choices
        QString nomeTipos;     // its objectName
        QString padraoBotoes;  // see QuatroBotoes
        QString nomeLimpar;    // Limpar's name where it leaves the pattern; "" none
    };

    EscolhaDocumento(const Configuracao& c, QWidget* pagina);

    // The objectName of a kind's choice on the page of an origin: optDI_tabProdutoEstrangeiro, optNFA_tabPIsemPPB.
    static QString NomeOpcao(TipoDocumento tipo, Origem origem);

    // The frames, one under the other, each stretching.
    void poeQuadros(QBoxLayout* coluna);
    // The frame of a kind.
    QuadroDocumento* quadro(TipoDocumento tipo) const { return m_quadros.value(static_cast<int>(tipo)); }
    QuadroDocumento* atual() const { return m_quadros.value(m_tipo); }
    const QMap<int, QuadroDocumento*>& quadros() const { return m_quadros; }

    // No kind chosen: the three choices off, the frames, grids and buttons hidden.
    void reinicia();
    // The parent of every frame's lines and the grid's texts for it.
    void definePai(const QVariantList& pai, const QMap<QString, QString>& textos);
    // The quantity's label of every frame ends with this unit.
    void defineUnidade(const QString& unidade);
    // The lines of the kind in force, when one is chosen.
    void recarrega();

    // Before a kind is shown: false (after its message) leaves none chosen.
    std::function<bool()> podeEscolher;
    // Monthly: after a line is deleted, a parent with no line of any kind left shows the page as when it was entered.
    std::function<QVariantList()> paiDasLinhas;

    QGroupBox* tipos = nullptr;
    QRadioButton* opcoes[3] = {};
    QuatroBotoes* botoes = nullptr;

private:
    void escolheTipo(int tipo);
    void excluir();

    QMap<int, QuadroDocumento*> m_quadros;
    int m_tipo = -1;
};
