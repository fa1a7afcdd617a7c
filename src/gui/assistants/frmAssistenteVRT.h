#pragma once
// The declaration chooser: the one list of all declarations, opened by the main window for one of five actions
// (FuncaoForm, FuncaoEscolha): open in its editor, eliminate, copy, write for transmission, write a backup. A double
// click on a row or Ok runs the action on the current row; for writing, several rows may be picked.
#include "core/session/modVRTPLN.h"
#include "gui/screens/TelaFilha.h"
#include "gui/screens/Telas.h"

#include <QString>
#include <QStringList>

class ConsultGrid;
class PainelCopiaVrt;
class QGroupBox;
class QPushButton;

class frmAssistenteVRT : public TelaFilha {
    Q_OBJECT
public:
    enum Acao {
        Abrir = FuncaoEscolha::Abrir,
        Eliminar = FuncaoEscolha::Eliminar,
        Copiar = FuncaoEscolha::Copiar,
        GravarTransmissao = FuncaoEscolha::GravarTransmissao,
        GravarBackup = FuncaoEscolha::GravarBackup
    };

    // The identification of the row an editor opens, read by the editor as it loads (a session value).
    static inline QString& IdVrtAbrir = modVRTPLN::IdVrtAbrir;

    explicit frmAssistenteVRT(QWidget* pai = nullptr);

    void FuncaoForm(int acao) override;
    int acao() const { return m_acao; }
    // The stored direction of each sortable column ("DESC", "ASC" or "").
    QStringList direcoes() const { return m_direcao; }

    QGroupBox* fraAssistenteVRT;
    ConsultGrid* grdAssistenteVRT;
    QPushButton* cmdOk;
    QPushButton* cmdCancela;
    PainelCopiaVrt* FraAssistenteVRT_Copia;

private:
    void carregaLista(int coluna, const QString& direcao);
    void grdAssistenteVRT_HeadClick(int coluna);
    void grdAssistenteVRT_DblClick();
    void elimina(const QString& identificacao);
    void grava(const QString& identificacao);
    void abre(const QString& identificacao, const QString& tipo);
    void fecha();
    void abreCopia();
    void fechaCopia();

    int m_acao = Abrir;
    QStringList m_direcao;
};
