#pragma once
// What every item tab of the two editors is to its editor (100% Nacional, PI com PPB, Produto Estrangeiro,
// PI sem PPB). The editor builds the tabs through CriaAbaItens (AbasItens.h) with one ContextoItens, and calls:
//   - carrega() when a stored declaration is opened (the tab's Carrega... routines);
//   - repopula() after a save (reload grids, empty the blocks, buttons as after a fresh load);
//   - aoEntrar() each time the tab comes up, after the general data were written: the individual editor's
//     read-only invoice head is refreshed there; a tab adds its own step by overriding it (and calling this).
// A tab builds its blocks (ExecutorBloco) in its constructor, with `pai()` as the rows' parent key: the
// declaration's ID_VRT_MICRO in the monthly editor, the invoice's ID_NFS in the individual one.
#include "core/store/DadosGeraisVrt.h"

#include <QVariant>
#include <QWidget>
#include <functional>

class CabecalhoNota;
class QVBoxLayout;

struct ContextoItens {
    bool individual = false;
    std::function<QString()> idVrt;
    std::function<qint64()> idNfs;
    std::function<NotaSaida()> nota;  // the invoice as last written (individual)
};

// A tall page of an item tab scrolls, so that it does not make the editor taller than the main window.
QWidget* PaginaRolavel(QWidget* pagina, QWidget* pai);

class AbaItens : public QWidget {
    Q_OBJECT
public:
    // `sufixoCabecalho` names the head's labels in the individual editor ("tab100Nacional_Individual").
    AbaItens(const ContextoItens& contexto, const QString& sufixoCabecalho, QWidget* parent = nullptr);

    virtual void carrega() = 0;
    virtual void repopula() = 0;
    virtual void aoEntrar();

    bool individual() const { return m_ctx.individual; }
    // The parent key of the tab's item rows: ID_VRT_MICRO (monthly) or ID_NFS (individual); empty or 0 before
    // the general data are first written.
    QVariant pai() const;
    const ContextoItens& contexto() const { return m_ctx; }
    CabecalhoNota* cabecalho() const { return m_cabecalho; }

protected:
    // The tab's column of frames, below the head.
    QVBoxLayout* corpo() const { return m_corpo; }

private:
    ContextoItens m_ctx;
    CabecalhoNota* m_cabecalho = nullptr;
    QVBoxLayout* m_corpo = nullptr;
};
