#pragma once
// A declaration written for transmission and read back: the file, its records and fields as the layout counts
// them, and the same declaration reopened in an editor after the reader stored it.
#include "ArquivoTeste.h"
#include "CenariosGravacao.h"
#include "../editor/EditorTeste.h"

#include "core/file/reading/LeArquivoVrt.h"
#include "core/file/writing/GravaVrt.h"

#include <QPushButton>
#include <QRegularExpression>

namespace VoltaArquivo {

using namespace EditorTeste;

// The declaration's file written for transmission, its one warning answered.
inline QByteArray escreve(const QString& id, const QString& pasta)
{
    MensagensRoteiro msgs;
    msgs.responde(Msg::OK);
    const ResultadoGravacao r = GravaVrt({id}, pasta, ModoGravacao::Transmissao);
    return r.arquivos.isEmpty() ? QByteArray() : CenariosGravacao::conteudo(r.arquivos.first());
}

// The file read into the database as the menu's import reads it.
inline bool importa(const QByteArray& arquivo, const QString& pasta)
{
    ArquivoTeste::grava(pasta + QStringLiteral("/entrada"), arquivo);
    MensagensRoteiro msgs;
    msgs.responde(Msg::OK).responde(Msg::OK);
    return LeArquivoVrtEm(pasta, QStringLiteral("entrada"), ModoLeitura::Importar);
}

// The lines of one record type, in the file's order.
inline QStringList registros(const QByteArray& arquivo, const QString& tipo)
{
    QStringList r;
    for (const QString& l : QString::fromLatin1(arquivo).split(QRegularExpression(QStringLiteral("\r?\n"))))
        if (l.startsWith(tipo))
            r << l;
    return r;
}

// A field of a line by its first column (counted from 1) and width.
inline QString de(const QString& linha, int posicao, int tamanho)
{
    return linha.mid(posicao - 1, tamanho);
}

// A text field as the writer pads it, and a zero-filled one.
inline QString x(const QString& s, int tamanho)
{
    return s.leftJustified(tamanho, u' ');
}

inline QString zeros(int n)
{
    return QString(n, u'0');
}

// The only declaration of the database opened through the menu's chooser.
inline void abrePeloEscolhedor(Ambiente& a)
{
    a.janela.acao(QStringLiteral("mnuDeclaracaoAbrir"))->trigger();
    QTest::mouseClick(a.janela.findChild<QPushButton*>(QStringLiteral("cmdOk")), Qt::LeftButton);
}

// Every row of every grid named, all columns, each row led by its grid's name. The keys the database makes
// (hidden columns named "ID_...") are left out: another database numbers its rows otherwise.
inline QList<QStringList> grades(Ambiente& a, const QStringList& nomes)
{
    QList<QStringList> r;
    for (const QString& nome : nomes) {
        auto* g = a.campo<ConsultGrid>(nome);
        for (int i = 0; i < g->dataRowCount(); ++i) {
            QStringList l = g->rowTexts(i);
            for (int c = 0; c < l.size(); ++c)
                if (g->titleText(c).startsWith(QLatin1String("ID_")))
                    l[c] = QStringLiteral("<chave>");
            r << (QStringList{nome} + l);
        }
    }
    return r;
}

// The file read into a fresh copy of the delivered database (no product registered, no declaration: what the
// declaration needs comes from the file) and the declaration opened through the chooser.
inline void reabre(Ambiente& b, const QByteArray& arquivo, const QString& pasta)
{
    QCOMPARE(BancoTeste::conta(QStringLiteral("PRODUTO")), 0);
    QCOMPARE(BancoTeste::conta(QStringLiteral("VRT")), 0);
    QVERIFY(importa(arquivo, pasta));
    abrePeloEscolhedor(b);
    QVERIFY(b.editor());
}

// Rows compared one by one, so that a failure names the first row that differs.
inline void confereLinhas(const QList<QStringList>& depois, const QList<QStringList>& antes)
{
    for (int i = 0; i < qMin(depois.size(), antes.size()); ++i)
        QCOMPARE(depois.at(i), antes.at(i));
    QCOMPARE(depois.size(), antes.size());
}

}  // namespace VoltaArquivo
