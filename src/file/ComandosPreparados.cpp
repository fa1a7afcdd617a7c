#include "file/ComandosPreparados.h"

#include "shell/MsgBox.h"
#include "store/modBancoDados.h"

ComandosPreparados::ComandosPreparados() = default;

ComandosPreparados::~ComandosPreparados()
{
    for (auto& par : m_consultas)
        par.second->finish();
}

QVariant ComandosPreparados::texto(const QString& valor)
{
    return valor.isNull() ? QVariant(QString(QLatin1String(""))) : QVariant(valor);
}

QSqlQuery& ComandosPreparados::roda(const char* sql, const QVariantList& valores)
{
    auto it = m_consultas.find(sql);
    if (it == m_consultas.end()) {
        auto q = std::make_unique<QSqlQuery>(modBancoDados::ConexaoBanco());
        q->setForwardOnly(true);
        if (!q->prepare(QString::fromUtf8(sql)))
            modBancoDados::BDTrataErro(q->lastError());
        it = m_consultas.emplace(sql, std::move(q)).first;
    }
    QSqlQuery& q = *it->second;
    for (int i = 0; i < valores.size(); ++i) {
        const QVariant& v = valores.at(i);
        // A null QString would be bound as NULL; the reader stores empty fields as empty texts.
        if (v.typeId() == QMetaType::QString && static_cast<const QString*>(v.constData())->isNull())
            q.bindValue(i, QString(QLatin1String("")));
        else
            q.bindValue(i, v);
    }
    if (!q.exec())
        modBancoDados::BDTrataErro(q.lastError());
    return q;
}

void ComandosPreparados::executa(const char* sql, const QVariantList& valores)
{
    QSqlQuery& q = roda(sql, valores);
    m_ultimaChave = q.lastInsertId();
    q.finish();
}

bool ComandosPreparados::novaChave(QVariant& chave, const QString& mensagem)
{
    chave = m_ultimaChave;
    if (chave.isValid() && !chave.isNull())
        return true;
    MsgBox(mensagem, Msg::Critical);
    return false;
}

QVariant ComandosPreparados::valor(const char* sql, const QVariantList& valores)
{
    QSqlQuery& q = roda(sql, valores);
    QVariant v = q.next() ? q.value(0) : QVariant();
    q.finish();
    return v;
}

bool ComandosPreparados::existe(const char* sql, const QVariantList& valores)
{
    QSqlQuery& q = roda(sql, valores);
    const bool achou = q.next();
    q.finish();
    return achou;
}
