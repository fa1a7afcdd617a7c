#include "core/store/modBancoDados.h"

#include "core/session/MsgBox.h"

#include <QFileInfo>
#include <cstdlib>

namespace modBancoDados {

namespace {

[[noreturn]] void encerraProcesso(const QString&, const QString&)
{
    // The engine drops the open transaction when the process is gone; nothing else is closed.
    std::_Exit(1);
}

bool transacaoAberta = false;

Encerramento& encerramentoAtual()
{
    static Encerramento fim = encerraProcesso;
    return fim;
}

bool abreArquivo(QSqlDatabase& db, const QString& caminho)
{
    db.setDatabaseName(caminho);
    if (!db.open())
        return false;
    QSqlQuery pragma(db);
    return pragma.exec(QStringLiteral("PRAGMA foreign_keys = ON"));
}

void prepara(QSqlQuery& q, const QString& sql, const QVariantList& valores)
{
    if (!q.prepare(sql))
        BDTrataErro(q.lastError());
    for (const QVariant& v : valores)
        q.addBindValue(v);
}

}  // namespace

bool ConectaBanco(const QString& caminho)
{
    DesconectaBanco();
    // A missing file must not be created empty in its place.
    if (!QFileInfo::exists(caminho))
        BDTrataErro(QStringLiteral("3044"), QStringLiteral("'%1' não é um caminho válido.").arg(caminho));
    QSqlDatabase db = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), NomeConexao);
    if (!abreArquivo(db, caminho))
        BDTrataErro(db.lastError());
    return true;
}

void DesconectaBanco()
{
    if (!QSqlDatabase::contains(NomeConexao))
        return;
    {
        QSqlDatabase db = QSqlDatabase::database(NomeConexao, false);
        if (db.isOpen()) {
            if (transacaoAberta)
                db.rollback();
            db.close();
        }
    }
    QSqlDatabase::removeDatabase(NomeConexao);
    transacaoAberta = false;
}

QSqlDatabase ConexaoBanco()
{
    return QSqlDatabase::database(NomeConexao, false);
}

bool Conectado()
{
    return QSqlDatabase::contains(NomeConexao) && ConexaoBanco().isOpen();
}

bool AbreConsulta(QSqlQuery& rs, const QString& sql, const QVariantList& valores, int* quantidade)
{
    if (rs.isActive()) {
        // The old error routine's message for 3705 could never be composed: the run ended in a type mismatch.
        BDTrataErro(QStringLiteral("13"), QStringLiteral("Type mismatch"));
    }
    prepara(rs, sql, valores);
    if (!rs.exec())
        BDTrataErro(rs.lastError());
    if (quantidade) {
        int n = 0;
        if (rs.isForwardOnly()) {
            // A forward-only result cannot be counted without being read; count it with a second query.
            QSqlQuery contagem(ConexaoBanco());
            prepara(contagem, QStringLiteral("SELECT COUNT(*) FROM (%1)").arg(sql), valores);
            if (!contagem.exec() || !contagem.next())
                BDTrataErro(contagem.lastError());
            n = contagem.value(0).toInt();
        } else if (rs.last()) {
            n = rs.at() + 1;
            rs.first();
            rs.previous();
        }
        *quantidade = n;
        if (n == 0)
            rs.finish();
    }
    return true;
}

void ExecutaSql(const QString& sql, const QVariantList& valores, int* afetados)
{
    QSqlQuery q(ConexaoBanco());
    prepara(q, sql, valores);
    if (!q.exec())
        BDTrataErro(q.lastError());
    if (afetados)
        *afetados = q.numRowsAffected();
}

QVariant ValorUnico(const QString& sql, const QVariantList& valores)
{
    QSqlQuery q(ConexaoBanco());
    q.setForwardOnly(true);
    prepara(q, sql, valores);
    if (!q.exec())
        BDTrataErro(q.lastError());
    return q.next() ? q.value(0) : QVariant();
}

bool CompactaBanco(const QString& arquivo)
{
    if (!QFileInfo::exists(arquivo)) {
        MsgBox(QStringLiteral("O banco de dados não foi encontrado:\n%1").arg(arquivo), Msg::Critical);
        return false;
    }
    const QString nome = QStringLiteral("Compactacao");
    bool ok = true;
    {
        QSqlDatabase db = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), nome);
        db.setDatabaseName(arquivo);
        ok = db.open();
        QSqlQuery q(db);
        ok = ok && q.exec(QStringLiteral("PRAGMA page_count")) && q.next();
        const qint64 paginas = ok ? q.value(0).toLongLong() : 0;
        ok = ok && q.exec(QStringLiteral("PRAGMA freelist_count")) && q.next();
        const qint64 livres = ok ? q.value(0).toLongLong() : 0;
        // Rewriting a large file costs seconds; it pays only when a good part of it is free pages.
        if (ok && livres > 16 && livres * 4 > paginas)
            ok = q.exec(QStringLiteral("VACUUM"));
        if (!ok)
            MsgBox(QStringLiteral("O banco de dados não pode ser aberto:\n%1\n%2").arg(arquivo, db.lastError().text()),
                   Msg::Critical);
        db.close();
    }
    QSqlDatabase::removeDatabase(nome);
    return ok;
}

void IniciaTransacao()
{
    if (!ConexaoBanco().transaction())
        BDTrataErro(ConexaoBanco().lastError());
    transacaoAberta = true;
}

void ConfirmaTransacao()
{
    if (!ConexaoBanco().commit())
        BDTrataErro(ConexaoBanco().lastError());
    transacaoAberta = false;
}

void DesfazTransacao()
{
    ConexaoBanco().rollback();
    transacaoAberta = false;
}

bool TransacaoAberta()
{
    return transacaoAberta;
}

Transacao::Transacao()
{
    IniciaTransacao();
}

Transacao::~Transacao()
{
    if (m_aberta)
        DesfazTransacao();
}

void Transacao::confirma()
{
    ConfirmaTransacao();
    m_aberta = false;
}

void BDTrataErro(const QString& numero, const QString& descricao)
{
    MsgBox(QStringLiteral("Error #") + numero + QStringLiteral(": ") + descricao, Msg::Critical,
           QStringLiteral("BDTrataErro"));
    encerramentoAtual()(numero, descricao);
    // An ending that returns is a defect of the caller; leave anyway.
    std::_Exit(1);
}

void BDTrataErro(const QSqlError& erro)
{
    const QString numero = erro.nativeErrorCode().isEmpty() ? QStringLiteral("1") : erro.nativeErrorCode();
    QString descricao = erro.databaseText();
    if (descricao.isEmpty())
        descricao = erro.driverText();
    BDTrataErro(numero, descricao);
}

Encerramento DefineEncerramento(Encerramento fim)
{
    Encerramento anterior = encerramentoAtual();
    encerramentoAtual() = std::move(fim);
    return anterior;
}

void EncerramentoPorExcecao(const QString& numero, const QString& descricao)
{
    throw FimDaExecucao(numero, descricao);
}

}  // namespace modBancoDados
