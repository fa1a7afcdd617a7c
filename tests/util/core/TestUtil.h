#pragma once
// What every test needs: a fresh copy of the delivered database as the session's connection, message boxes
// answered from a script, and the run's ending turned into an exception.
#include "core/session/MsgBox.h"
#include "core/store/modBancoDados.h"

#include <QList>
#include <QString>
#include <QTemporaryDir>
#include <QVariant>
#include <memory>

struct CaixaMsg {
    QString texto;
    int estilo = 0;
    QString titulo;
    int icone() const { return estilo & Msg::MascaraIcone; }
    int botoes() const { return estilo & Msg::MascaraBotoes; }
};

// Installs itself as the message handler for its lifetime. Each box takes the next scripted answer; a box with
// no answer left is recorded as unexpected and gets its default button. Tests check `caixas` and `inesperadas`.
class MensagensRoteiro {
public:
    MensagensRoteiro();
    ~MensagensRoteiro();
    MensagensRoteiro& responde(int resposta);  // queue an answer (Msg::Yes, Msg::No, Msg::Cancel, Msg::OK)
    QList<CaixaMsg> caixas;
    int inesperadas = 0;
    QStringList textos() const;
    void limpa();

private:
    QList<int> m_respostas;
    ManipuladorMsg m_anterior;
};

// A fresh copy of the delivered database in a temporary folder, which becomes CaminhoAplicacao and CaminhoDados,
// connected as the session's connection; BDTrataErro throws modBancoDados::FimDaExecucao while it lives.
class BancoTeste {
public:
    explicit BancoTeste(bool conectar = true);
    ~BancoTeste();
    QString pasta() const { return m_dir.path(); }
    QString arquivo() const;
    // Number of rows of a table, optionally with a WHERE clause with bound values.
    static int conta(const QString& tabela, const QString& onde = QString(), const QVariantList& valores = {});
    // Single value of a query.
    static QVariant valor(const QString& sql, const QVariantList& valores = {});
    static void executa(const QString& sql, const QVariantList& valores = {});

private:
    QTemporaryDir m_dir;
    modBancoDados::Encerramento m_fimAnterior;
};

// Runs a block that must end the run through BDTrataErro; gives the error number, or an empty text if it did not.
template <typename F>
QString numeroDoFim(F&& bloco)
{
    try {
        bloco();
    } catch (const modBancoDados::FimDaExecucao& fim) {
        return fim.numero;
    }
    return QString();
}
