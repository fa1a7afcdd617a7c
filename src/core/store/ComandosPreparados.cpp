#include "core/store/ComandosPreparados.h"

#include "core/store/ComandoSqlite.h"
#include "core/store/modBancoDados.h"

ComandosPreparados::ComandosPreparados(AntesDeFalhar antes) : m_antes(antes) {}

ComandosPreparados::~ComandosPreparados() = default;

QVariant ComandosPreparados::texto(const QString& valor)
{
    return valor.isNull() ? QVariant(QString(QLatin1String(""))) : QVariant(valor);
}

void ComandosPreparados::falha(const QSqlError& erro)
{
    // A busy database is not the row's fault: it ends the run with its own message whatever the caller chose.
    if (m_antes == AntesDeFalhar::Recusa && !modBancoDados::BancoOcupado(erro))
        throw ComandoRecusado{erro};
    if (m_antes == AntesDeFalhar::DesfazTransacao)
        modBancoDados::DesfazTransacao();
    modBancoDados::BDTrataErro(erro);
}

ComandoSqlite& ComandosPreparados::comando(const QString& sql)
{
    auto it = m_comandos.find(sql);
    if (it == m_comandos.end())
        it = m_comandos.emplace(sql, std::make_unique<ComandoSqlite>(sql)).first;
    return *it->second;
}

void ComandosPreparados::executaLigado(ComandoSqlite& c)
{
    if (!c.executa())
        falha(c.erro());
    m_ultimaChave = c.ultimaChave();
    c.encerra();
}

ComandoSqlite& ComandosPreparados::roda(const QString& sql, const QVariantList& valores)
{
    ComandoSqlite& c = comando(sql);
    // A null QString would be bound as NULL; the reader stores empty fields as empty texts.
    const auto textoNulo = [](const QVariant& v) {
        return v.typeId() == QMetaType::QString && static_cast<const QString*>(v.constData())->isNull();
    };
    bool temNulo = false;
    for (const QVariant& v : valores)
        temNulo = temNulo || textoNulo(v);
    bool ok = false;
    if (temNulo) {
        QVariantList semNulos = valores;
        for (QVariant& v : semNulos) {
            if (textoNulo(v))
                v = QString(QLatin1String(""));
        }
        ok = c.roda(semNulos);
    } else {
        ok = c.roda(valores);
    }
    if (!ok)
        falha(c.erro());
    return c;
}

void ComandosPreparados::executa(const QString& sql, const QVariantList& valores)
{
    ComandoSqlite& c = roda(sql, valores);
    m_ultimaChave = c.ultimaChave();
    c.encerra();
}

QVariant ComandosPreparados::valor(const QString& sql, const QVariantList& valores)
{
    ComandoSqlite& c = roda(sql, valores);
    QVariant v = c.proxima() ? c.valor(0) : QVariant();
    c.encerra();
    return v;
}

bool ComandosPreparados::existe(const QString& sql, const QVariantList& valores)
{
    ComandoSqlite& c = roda(sql, valores);
    const bool achou = c.proxima();
    c.encerra();
    return achou;
}
