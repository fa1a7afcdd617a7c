#pragma once
// One implementation of an entry-document frame for any member of the family (MembroDocumento): builds the
// controls the member names, keeps the enabling rules of the electronic number, the Decreto-Lei 288/67, the
// obsolescence and the suspension, checks the fields on leaving, validates, and includes, changes and deletes
// lines with their child row of values through the store routines of DocumentoEntrada. The page around it
// gives the parent key (a destination or an item) and owns the four buttons.
#include "gui/items/MembroDocumento.h"

#include <QMap>
#include <QWidget>

class ConsultGrid;
class QGroupBox;
class QLabel;

class QuadroDocumento : public QWidget {
    Q_OBJECT
public:
    QuadroDocumento(const MembroDocumento& membro, QWidget* parent = nullptr);

    const MembroDocumento& membro() const { return m_m; }
    // The control of a part; nullptr when the member has none.
    QWidget* campo(Papel papel) const { return m_campos.value(papel); }

    // The parent the lines hang on (empty: none chosen) and what the grid shows for it ("#produto", "#local",
    // "#item").
    void definePai(const QVariantList& pai, const QMap<QString, QString>& textos);
    bool temPai() const { return !m_pai.isEmpty(); }
    // The quantity's label ends with the commercial unit of the product.
    void defineUnidade(const QString& unidade);

    // Carrega...: the lines of the parent; no row chosen.
    void carrega();
    // LimpaCampos...: fields empty, "Sim", every check off and the value blocks closed.
    void limpa();
    bool valida();
    bool incluir();
    bool alterar();
    // True when a line was deleted.
    bool excluir();
    bool temSelecao() const { return m_id != 0; }

    QGroupBox* quadroCampos = nullptr;
    QGroupBox* quadroGrade = nullptr;
    ConsultGrid* grade = nullptr;

signals:
    // A row was chosen (true) or the grid reloaded (false): the page's Alterar, Excluir and Limpar follow.
    void selecaoMudou(bool escolhida);

private:
    QWidget* constroiCampos();
    QWidget* constroiCampo(Papel p);
    void ligaNota();
    QWidget* constroiBloco(int i);
    void adiciona(Papel papel, QWidget* campo, const QString& rotulo, QWidget* area, class QGridLayout* grade,
                  int linha, int coluna);
    void liga();
    void eletronica_Click();
    void habilitaValores();
    void habilitaUnitario(Condicao c);
    bool tem(Papel p) const { return m_m.nomes.contains(p); }
    Papel focoNumero() const;
    bool confereNumeroAoSair();
    bool confereData();
    bool confereSerie();
    QString mensagemCFOP() const;
    bool vale(Condicao c) const;
    bool marcado(Papel p) const;
    bool eletronica() const;
    bool confereNumero();
    bool confereDigitos(Papel p);
    void confereMoeda(int i);
    bool recusa(const QString& texto, Papel foco);
    QString texto(Papel p) const;
    void poe(Papel p, const QString& valor);
    QVariantMap linha() const;
    QVariantMap criterio() const;
    void escolheLinha(int linha);
    void mostra(const QVariantMap& l);

    const MembroDocumento& m_m;
    QMap<Papel, QWidget*> m_campos;
    QMap<Papel, QLabel*> m_rotulos;
    QList<QGroupBox*> m_blocos;
    QVariantList m_pai;
    QMap<QString, QString> m_textosPai;
    qint64 m_id = 0;
    QVariantMap m_escolhida;
    bool m_carregando = false;
};
