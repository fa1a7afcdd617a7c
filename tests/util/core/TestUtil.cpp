#include "TestUtil.h"

#include "core/session/modVRTPLN.h"

#include <QFile>
#include <QSqlQuery>
#include <QtTest>

MensagensRoteiro::MensagensRoteiro()
{
    m_anterior = InstalaManipuladorMsg([this](const QString& texto, int estilo, const QString& titulo) {
        caixas.append({texto, estilo, titulo});
        if (m_respostas.isEmpty()) {
            ++inesperadas;
            qWarning("caixa de mensagem inesperada: %s", qPrintable(texto));
            return RespostaPadrao(estilo);
        }
        return m_respostas.takeFirst();
    });
}

MensagensRoteiro::~MensagensRoteiro()
{
    InstalaManipuladorMsg(m_anterior);
}

MensagensRoteiro& MensagensRoteiro::responde(int resposta)
{
    m_respostas.append(resposta);
    return *this;
}

QStringList MensagensRoteiro::textos() const
{
    QStringList t;
    for (const CaixaMsg& c : caixas)
        t << c.texto;
    return t;
}

void MensagensRoteiro::limpa()
{
    caixas.clear();
    inesperadas = 0;
    m_respostas.clear();
}

BancoTeste::BancoTeste(bool conectar)
{
    m_fimAnterior = modBancoDados::DefineEncerramento(modBancoDados::EncerramentoPorExcecao);
    modVRTPLN::CaminhoAplicacao = m_dir.path();
    modVRTPLN::CaminhoDados = m_dir.path();
    const QString destino = arquivo();
    if (!QFile::copy(QStringLiteral(VRT_DELIVERED_DB), destino))
        qFatal("não foi possível copiar o banco entregue %s", VRT_DELIVERED_DB);
    QFile(destino).setPermissions(QFile::ReadOwner | QFile::WriteOwner);
    if (conectar)
        modBancoDados::ConectaBanco(destino);
}

BancoTeste::~BancoTeste()
{
    modBancoDados::DesconectaBanco();
    modBancoDados::DefineEncerramento(m_fimAnterior);
    modVRTPLN::TelaAtual = 0;
    modVRTPLN::AlteracaoPendente = false;
}

QString BancoTeste::arquivo() const
{
    return m_dir.path() + QStringLiteral("/") + modVRTPLN::NomeArquivoBanco;
}

int BancoTeste::conta(const QString& tabela, const QString& onde, const QVariantList& valores)
{
    QString sql = QStringLiteral("SELECT COUNT(*) FROM ") + tabela;
    if (!onde.isEmpty())
        sql += QStringLiteral(" WHERE ") + onde;
    return modBancoDados::ValorUnico(sql, valores).toInt();
}

QVariant BancoTeste::valor(const QString& sql, const QVariantList& valores)
{
    return modBancoDados::ValorUnico(sql, valores);
}

void BancoTeste::executa(const QString& sql, const QVariantList& valores)
{
    modBancoDados::ExecutaSql(sql, valores);
}
