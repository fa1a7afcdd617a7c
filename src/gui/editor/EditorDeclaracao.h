#pragma once
// What the two declaration editors share, configured by what differs between them (ConfigEditor): the tab
// strip tabDeclaracao with its guard, FuncaoForm for a new and a stored declaration, the general data checks
// and writes, saving and closing inside the one transaction the editor holds for its whole life.
#include "core/store/DadosGeraisVrt.h"
#include "gui/screens/TelaFilha.h"

class AbaDadosGerais;
class AbaItens;
class AbaNotaSaida;
class AbaValores;
class QTabWidget;

struct ConfigEditor {
    bool individual = false;
    QString nome;          // frmVRTmensalNovo, frmVRTindividualNovo
    QString legendaNova;   // caption of a new declaration
    QString legendaAberta; // caption of a stored one
    int modoNovo = 0;
    int modoAbrir = 2;
};

class EditorDeclaracao : public TelaFilha {
    Q_OBJECT
public:
    EditorDeclaracao(const ConfigEditor& config, QWidget* parent = nullptr);
    ~EditorDeclaracao() override;

    void FuncaoForm(int modo) override;
    void RepopulaGrids() override;
    bool ValidaDadosGerais() override;
    void AtualizaDadosGerais() override;
    bool TestaDadosGerais() const;
    // The editor opens at the size its fields need, so that it fits a main window of 1024×768.
    QSize sizeHint() const override;

    // ID_VRT_MICRO of the declaration; empty until the general data are first written.
    QString idVrt() const { return m_copia.idVrt; }
    qint64 idNfs() const { return m_copiaNota.idNfs; }
    bool Carregando() const { return m_carregando; }
    int ModoForm() const { return m_modo; }

    QTabWidget* tabDeclaracao = nullptr;
    AbaDadosGerais* dadosGerais = nullptr;
    AbaNotaSaida* notaSaida = nullptr;  // the individual editor only
    AbaValores* valores = nullptr;
    // The item tab at `indice` of tabDeclaracao (1 to 4); nullptr for a tab not built yet.
    AbaItens* abaItens(int indice) const { return indice >= 1 && indice <= 4 ? m_abasItens[indice] : nullptr; }

protected:
    void closeEvent(QCloseEvent* evento) override;

private:
    void constroiAbas();
    void ligaFocoMensal();
    void tabDeclaracao_Click(int nova);
    void ChkMand_Retif_Click(int indice);
    void chkSimRest_Click();
    void abreDeclaracao(const QString& id);
    void guardaCopia();
    void mostraAbaValores(int indice, bool visivel);
    void voltaAbaZero();

    ConfigEditor m_config;
    DadosGerais m_copia;
    NotaSaida m_copiaNota;
    QString m_alcCopia = QStringLiteral("N");
    bool m_carregando = false;
    int m_modo = -1;
    int m_abaAtual = 0;
    bool m_trocandoAba = false;
    bool m_fechada = false;
    AbaItens* m_abasItens[5] = {};
};
