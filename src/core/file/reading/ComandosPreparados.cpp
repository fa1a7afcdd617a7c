#include "core/file/reading/ComandosPreparados.h"

#include "core/session/MsgBox.h"
#include "core/store/modBancoDados.h"

#include <QVector>

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

namespace {
// The name bound to the i-th "?" of a statement. Qt turns a value bound by position into a placeholder name
// (":" and the number, built with QString::arg) for every value of every row; binding by a name made once per
// position takes about a sixth off reading a large file.
const QString& nomeDaPosicao(int i)
{
    static QVector<QString> nomes;
    while (nomes.size() <= i)
        nomes.append(QStringLiteral(":v") + QString::number(nomes.size()));
    return nomes.at(i);
}

// The statement with each "?" outside quotes replaced by the name of its position.
QString comNomes(const char* sql)
{
    const QString texto = QString::fromUtf8(sql);
    QString r;
    r.reserve(texto.size() + 16);
    bool aspas = false;
    int posicao = 0;
    for (const QChar c : texto) {
        if (c == QLatin1Char('\''))
            aspas = !aspas;
        if (c == QLatin1Char('?') && !aspas)
            r += nomeDaPosicao(posicao++);
        else
            r += c;
    }
    return r;
}
}  // namespace

QSqlQuery& ComandosPreparados::roda(const char* sql, const QVariantList& valores)
{
    auto it = m_consultas.find(sql);
    if (it == m_consultas.end()) {
        auto q = std::make_unique<QSqlQuery>(modBancoDados::ConexaoBanco());
        q->setForwardOnly(true);
        if (!q->prepare(comNomes(sql)))
            modBancoDados::BDTrataErro(q->lastError());
        it = m_consultas.emplace(sql, std::move(q)).first;
    }
    QSqlQuery& q = *it->second;
    for (int i = 0; i < valores.size(); ++i) {
        const QVariant& v = valores.at(i);
        // A null QString would be bound as NULL; the reader stores empty fields as empty texts.
        if (v.typeId() == QMetaType::QString && static_cast<const QString*>(v.constData())->isNull())
            q.bindValue(nomeDaPosicao(i), QString(QLatin1String("")));
        else
            q.bindValue(nomeDaPosicao(i), v);
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
