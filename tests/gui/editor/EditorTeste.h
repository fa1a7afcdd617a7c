#pragma once
// The main window on a fresh database with the real screens registered, and the ways a test reaches into an
// editor: by control names, typing as a user types, choosing list entries, changing tabs, saving and closing.
#include "TestUtil.h"

#include "app/RegistroTelas.h"
#include "gui/editor/EditorDeclaracao.h"
#include "core/rules/DigitoVerificador.h"
#include "gui/shell/frmVRTPLN.h"
#include "core/session/modVRTPLN.h"
#include "gui/widgets/ConsultGrid.h"

#include <QAction>
#include <QComboBox>
#include <QLineEdit>
#include <QPushButton>
#include <QSqlDatabase>
#include <QSqlQuery>
#include <QTabWidget>
#include <QtTest>

namespace EditorTeste {

inline const QString Cnpj = QStringLiteral("11222333000181");

// A declaration number (kind "VRT") with a good check digit, from its first nine digits.
inline QString numeroVrt(const QString& nove = QStringLiteral("091234567"))
{
    for (int d = 0; d <= 9; ++d)
        if (Funcoes::ValidaDigito(nove + QString::number(d), QStringLiteral("VRT")))
            return nove + QString::number(d);
    return QString();
}

// The two digits of the current year, as identifications end.
inline QString anoAtual2()
{
    return QStringLiteral("%1").arg(QDate::currentDate().year() % 100, 2, 10, QLatin1Char('0'));
}

struct Ambiente {
    BancoTeste banco;
    MensagensRoteiro msgs;
    frmVRTPLN janela;

    Ambiente()
    {
        modVRTPLN::TelaAtual = 0;
        modVRTPLN::AlteracaoPendente = false;
        RegistraTelas();
        janela.carrega();
        janela.show();
        janela.activateWindow();
        if (!QTest::qWaitForWindowActive(&janela))
            qWarning("a janela principal não ficou ativa");
    }
    ~Ambiente()
    {
        // Whatever a test left open goes without questions.
        for (int i = 0; i < 3; ++i)
            msgs.responde(Msg::No);
        janela.fechaTela();
        QSqlDatabase::removeDatabase(QStringLiteral("leitor"));
    }

    EditorDeclaracao* editor() const { return qobject_cast<EditorDeclaracao*>(janela.telaAberta()); }
    EditorDeclaracao* novaMensal()
    {
        janela.acao(QStringLiteral("mnuDeclaracaoNovaMensal"))->trigger();
        return editor();
    }
    EditorDeclaracao* novaIndividual()
    {
        janela.acao(QStringLiteral("mnuDeclaracaoNovaIndividual"))->trigger();
        return editor();
    }
    void salvar() { janela.acao(QStringLiteral("mnuDeclaracaoSalvar"))->trigger(); }
    void fechar() { janela.acao(QStringLiteral("mnuDeclaracaoFechar"))->trigger(); }

    template <class T = QWidget>
    T* campo(const QString& nome) const
    {
        T* w = editor() ? editor()->findChild<T*>(nome) : nullptr;
        if (!w)
            qWarning("controle não encontrado: %s", qPrintable(nome));
        return w;
    }
    QTabWidget* abas() const { return campo<QTabWidget>(QStringLiteral("tabDeclaracao")); }
    QTabWidget* abasValores() const { return campo<QTabWidget>(QStringLiteral("tabValores")); }

    // Enters the field as Tab would, empties it and types `texto`.
    void digita(const QString& nome, const QString& texto)
    {
        auto* w = campo<QLineEdit>(nome);
        w->setFocus(Qt::TabFocusReason);
        QCoreApplication::processEvents();
        w->clear();
        QTest::keyClicks(w, texto);
    }
    // Moves the focus on, as leaving the field for another control does.
    void sai(const QString& proximo)
    {
        campo(proximo)->setFocus(Qt::TabFocusReason);
        QCoreApplication::processEvents();
    }
    // Chooses a list entry as the user does, so that the list's own step runs.
    void escolhe(const QString& nome, const QString& texto)
    {
        auto* c = campo<QComboBox>(nome);
        c->setFocus(Qt::TabFocusReason);
        QCoreApplication::processEvents();
        const int i = c->findText(texto);
        QVERIFY2(i >= 0, qPrintable(texto));
        c->setCurrentIndex(i);
        emit c->activated(i);
    }
    QStringList entradas(const QString& nome) const
    {
        auto* c = campo<QComboBox>(nome);
        QStringList t;
        for (int i = 0; i < c->count(); ++i)
            t << c->itemText(i);
        return t;
    }
    // A click near the left edge, where a box's indicator and caption stand however wide the box is laid out.
    void clica(const QString& nome)
    {
        auto* b = campo<QAbstractButton>(nome);
        QTest::mouseClick(b, Qt::LeftButton, {}, QPoint(qMin(8, b->width() / 2), b->height() / 2));
    }
    void vaiParaAba(int aba) { abas()->setCurrentIndex(aba); }

    // The monthly general data, filled and valid.
    void preencheMensal(const QString& mes = QStringLiteral("3"), const QString& ano = QStringLiteral("2009"))
    {
        digita(QStringLiteral("mskDadosGerais(1)"), Cnpj);
        digita(QStringLiteral("txtDadosGeraisMensal(0)"), mes);
        digita(QStringLiteral("txtDadosGeraisMensal(1)"), ano);
        sai(QStringLiteral("txtDadosGerais(1)"));
    }

    // The individual general data and exit invoice, filled and valid, set straight into the fields.
    void preencheIndividual()
    {
        const QList<QPair<const char*, QString>> campos{
            {"mskDadosGerais(1)", Cnpj},          {"mskDadosGerais(2)", QStringLiteral("12345678")},
            {"mskDadosGeraisIndividual(3)", QStringLiteral("123")},
            {"txtDadosGeraisIndividual(1)", QStringLiteral("A1")},
            {"mskDadosGeraisIndividual(0)", QStringLiteral("10052009")},
            {"mskDadosGeraisIndividual(1)", QStringLiteral("11052009")},
            {"txtDadosGeraisIndividual(2)", QStringLiteral("5102")},
            {"mskDadosGeraisIndividual(2)", QStringLiteral("33000167000101")}};
        for (const auto& [nome, texto] : campos)
            campo<QLineEdit>(QString::fromUtf8(nome))->setText(texto);
        auto* uf = campo<QComboBox>(QStringLiteral("cboUF"));
        uf->setCurrentIndex(uf->findText(QStringLiteral("AM")));
    }

    // A new declaration of either kind with its general data (or invoice) filled.
    void novaPreenchida(bool individual)
    {
        if (individual) {
            novaIndividual();
            preencheIndividual();
        } else {
            novaMensal();
            preencheMensal();
        }
    }

    // A value row through the block's own buttons.
    void incluiValor(int i, const QString& modalidade, const QString& descricao, const QString& valor)
    {
        escolhe(QStringLiteral("cboModalidade(%1)").arg(i), modalidade);
        escolhe(QStringLiteral("cboDescricao(%1)").arg(i), descricao);
        digita(QStringLiteral("mskValor(%1)").arg(i), valor);
        clica(QStringLiteral("cmdIncluirValores(%1)").arg(i));
    }

    // A value read through a second connection: what is committed, not what the editor's transaction holds.
    QVariant comprometido(const QString& sql, const QVariantList& valores = {})
    {
        QSqlDatabase db = QSqlDatabase::contains(QStringLiteral("leitor"))
                              ? QSqlDatabase::database(QStringLiteral("leitor"))
                              : QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), QStringLiteral("leitor"));
        db.setDatabaseName(banco.arquivo());
        db.open();
        QSqlQuery q(db);
        q.prepare(sql);
        for (const QVariant& v : valores)
            q.addBindValue(v);
        q.exec();
        const QVariant v = q.next() ? q.value(0) : QVariant();
        q.finish();
        db.close();
        return v;
    }
};

}  // namespace EditorTeste
