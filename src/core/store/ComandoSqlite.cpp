#include "core/store/ComandoSqlite.h"

#include "core/store/modBancoDados.h"

#include <QCoreApplication>
#include <QSqlDriver>
#include <sqlite3.h>

namespace {

QSqlError erroDoBanco(sqlite3* db, const char* oQue, QSqlError::ErrorType tipo, int codigo)
{
    return QSqlError(QCoreApplication::translate("QSQLiteResult", oQue), QString::fromUtf8(sqlite3_errmsg(db)), tipo,
                     QString::number(codigo));
}

}  // namespace

sqlite3* ComandoSqlite::conexao()
{
    const QVariant h = modBancoDados::ConexaoBanco().driver()->handle();
    if (!h.isValid() || qstrcmp(h.typeName(), "sqlite3*") != 0)
        modBancoDados::BDTrataErro(QStringLiteral("3024"), QStringLiteral("O banco de dados não está aberto."));
    sqlite3* db = *static_cast<sqlite3* const*>(h.constData());
    if (!db)
        modBancoDados::BDTrataErro(QStringLiteral("3024"), QStringLiteral("O banco de dados não está aberto."));
    return db;
}

MarcaEscrita ComandoSqlite::marcaEscrita()
{
    sqlite3* db = conexao();
    return {db, qint64(sqlite3_total_changes64(db))};
}

ComandoSqlite::ComandoSqlite(const QString& sql) : m_db(conexao())
{
    const QByteArray texto = sql.toUtf8();
    const char* resto = nullptr;
    const int r = sqlite3_prepare_v2(m_db, texto.constData(), int(texto.size() + 1), &m_stmt, &resto);
    if (r != SQLITE_OK)
        modBancoDados::BDTrataErro(erroDoBanco(m_db, "Unable to execute statement", QSqlError::StatementError, r));
    if (resto && *resto && QByteArray(resto).trimmed().size() > 0) {
        modBancoDados::BDTrataErro(QSqlError(
            QCoreApplication::translate("QSQLiteResult", "Unable to execute multiple statements at a time"),
            QString(), QSqlError::StatementError));
    }
    m_textos.resize(sqlite3_bind_parameter_count(m_stmt));
}

ComandoSqlite::~ComandoSqlite()
{
    sqlite3_finalize(m_stmt);
}

void ComandoSqlite::liga(int posicao, const QVariant& v)
{
    const int i = posicao + 1;
    // An invalid or null value is NULL, as Qt SQL binds it; a null QString or QByteArray too (below).
    if (v.isNull()) {
        sqlite3_bind_null(m_stmt, i);
        return;
    }
    switch (v.typeId()) {
    case QMetaType::Bool:
    case QMetaType::Int:
    case QMetaType::UInt:
    case QMetaType::LongLong:
    case QMetaType::ULongLong:
    case QMetaType::Long:
    case QMetaType::ULong:
    case QMetaType::Short:
    case QMetaType::UShort:
        sqlite3_bind_int64(m_stmt, i, v.toLongLong());
        return;
    case QMetaType::Double:
    case QMetaType::Float:
        sqlite3_bind_double(m_stmt, i, v.toDouble());
        return;
    case QMetaType::QByteArray: {
        if (static_cast<const QByteArray*>(v.constData())->isNull()) {
            sqlite3_bind_null(m_stmt, i);
            return;
        }
        m_textos[posicao] = v.toByteArray();
        const QByteArray& b = m_textos.at(posicao);
        sqlite3_bind_blob(m_stmt, i, b.constData(), int(b.size()), SQLITE_STATIC);
        return;
    }
    case QMetaType::QString: {
        const QString& texto = *static_cast<const QString*>(v.constData());
        if (texto.isNull()) {
            sqlite3_bind_null(m_stmt, i);
            return;
        }
        ligaTexto(posicao, texto);
        return;
    }
    default:
        m_textos[posicao] = v.toString().toUtf8();
        break;
    }
    const QByteArray& t = m_textos.at(posicao);
    sqlite3_bind_text(m_stmt, i, t.constData(), int(t.size()), SQLITE_STATIC);
}

void ComandoSqlite::ligaTexto(int posicao, QStringView texto)
{
    // UTF-8 by hand into a buffer that only ever grows, so that a run binds without allocating or resizing:
    // nearly every text here is ASCII.
    QByteArray& b = m_textos[posicao];
    if (b.size() < texto.size() * 3 + 1)
        b.resize(texto.size() * 3 + 1);
    char* d = b.data();
    bool temNulo = false;
    for (qsizetype i = 0; i < texto.size(); ++i) {
        const char16_t u = texto.at(i).unicode();
        if (u < 0x80) {
            temNulo |= u == 0;
            *d++ = char(u);
        } else if (u < 0x800) {
            *d++ = char(0xC0 | (u >> 6));
            *d++ = char(0x80 | (u & 0x3F));
        } else if (QChar::isSurrogate(u)) {
            b = texto.toUtf8();
            sqlite3_bind_text(m_stmt, posicao + 1, b.constData(), int(b.size()), SQLITE_STATIC);
            return;
        } else {
            *d++ = char(0xE0 | (u >> 12));
            *d++ = char(0x80 | ((u >> 6) & 0x3F));
            *d++ = char(0x80 | (u & 0x3F));
        }
    }
    *d = '\0';
    // Told that the text ends at that NUL (a length of -1), the engine marks it as ended and does not copy it to
    // end it when a CHECK(length(...)) of the schema reads it, which every text column of a declaration's tables
    // has: that copy was a tenth of a reading. A text with a NUL of its own keeps its length.
    sqlite3_bind_text(m_stmt, posicao + 1, b.constData(), temNulo ? int(d - b.constData()) : -1, SQLITE_STATIC);
}

void ComandoSqlite::inicia()
{
    sqlite3_reset(m_stmt);
    // A QSqlError is not free to make: reset only after a failure.
    if (m_erro.type() != QSqlError::NoError)
        m_erro = QSqlError();
    m_temLinha = false;
}

bool ComandoSqlite::executa()
{
    m_noFim = false;
    m_temLinha = passo();
    return m_erro.type() == QSqlError::NoError;
}

bool ComandoSqlite::passo()
{
    const int r = sqlite3_step(m_stmt);
    if (r == SQLITE_ROW)
        return true;
    m_noFim = true;
    if (r == SQLITE_DONE)
        return false;
    m_erro = erroDoBanco(m_db, "Unable to fetch row", QSqlError::ConnectionError, r);
    sqlite3_reset(m_stmt);
    return false;
}

bool ComandoSqlite::roda(const QVariantList& valores)
{
    inicia();
    if (valores.size() != m_textos.size()) {
        m_erro = QSqlError(QCoreApplication::translate("QSQLiteResult", "Parameter count mismatch"), QString(),
                           QSqlError::StatementError);
        m_noFim = true;
        return false;
    }
    for (int i = 0; i < valores.size(); ++i)
        liga(i, valores.at(i));
    return executa();
}

void ComandoSqlite::abre(const QVariantList& valores)
{
    if (!roda(valores))
        modBancoDados::BDTrataErro(m_erro);
}

bool ComandoSqlite::proxima()
{
    if (m_temLinha) {
        m_temLinha = false;
        return true;
    }
    if (m_noFim)
        return false;
    if (passo())
        return true;
    if (m_erro.type() != QSqlError::NoError)
        modBancoDados::BDTrataErro(m_erro);
    return false;
}

void ComandoSqlite::encerra()
{
    sqlite3_reset(m_stmt);
    m_temLinha = false;
    m_noFim = true;
}

QVariant ComandoSqlite::valor(int coluna) const
{
    switch (sqlite3_column_type(m_stmt, coluna)) {
    case SQLITE_INTEGER:
        return QVariant(qint64(sqlite3_column_int64(m_stmt, coluna)));
    case SQLITE_FLOAT:
        return QVariant(sqlite3_column_double(m_stmt, coluna));
    case SQLITE_NULL:
        return QVariant(QMetaType::fromType<QString>());
    case SQLITE_BLOB:
        return QByteArray(static_cast<const char*>(sqlite3_column_blob(m_stmt, coluna)),
                          sqlite3_column_bytes(m_stmt, coluna));
    default:
        return texto(coluna);
    }
}

int ComandoSqlite::colunas() const
{
    return sqlite3_column_count(m_stmt);
}

QString ComandoSqlite::nomeColuna(int coluna) const
{
    return QString::fromUtf8(sqlite3_column_name(m_stmt, coluna));
}

bool ComandoSqlite::utf8(int coluna, QByteArrayView& texto) const
{
    // One look at the value, as in le().
    sqlite3_value* valor = sqlite3_column_value(m_stmt, coluna);
    const int tipo = sqlite3_value_type(valor);
    if (tipo != SQLITE_TEXT && tipo != SQLITE_INTEGER) {
        texto = QByteArrayView();
        return tipo == SQLITE_NULL;
    }
    const auto* t = reinterpret_cast<const char*>(sqlite3_value_text(valor));
    texto = QByteArrayView(t, sqlite3_value_bytes(valor));
    return true;
}

QString ComandoSqlite::texto(int coluna) const
{
    switch (sqlite3_column_type(m_stmt, coluna)) {
    case SQLITE_TEXT: {
        const auto* t = reinterpret_cast<const char*>(sqlite3_column_text(m_stmt, coluna));
        return QString::fromUtf8(t, sqlite3_column_bytes(m_stmt, coluna));
    }
    case SQLITE_NULL:
        return QString();
    default:
        return valor(coluna).toString();
    }
}

ComandoSqlite::Conteudo ComandoSqlite::le(int coluna, QByteArrayView& texto, qint64& numero) const
{
    // Read through the column's sqlite3_value: one call to the statement per value instead of three. That value
    // is unprotected, which is safe as the connection is used by one thread only (the driver opens it without a
    // mutex).
    sqlite3_value* valor = sqlite3_column_value(m_stmt, coluna);
    switch (sqlite3_value_type(valor)) {
    case SQLITE_NULL:
        return Conteudo::Nulo;
    case SQLITE_INTEGER:
        numero = sqlite3_value_int64(valor);
        return Conteudo::Inteiro;
    case SQLITE_TEXT: {
        // The text first, then its size, as the engine's documentation asks.
        const auto* t = reinterpret_cast<const char*>(sqlite3_value_text(valor));
        texto = QByteArrayView(t, sqlite3_value_bytes(valor));
        return Conteudo::Texto;
    }
    default:
        return Conteudo::Outro;
    }
}

qint64 ComandoSqlite::inteiro(int coluna) const
{
    if (sqlite3_column_type(m_stmt, coluna) == SQLITE_INTEGER)
        return sqlite3_column_int64(m_stmt, coluna);
    return valor(coluna).toLongLong();
}

QVariant ComandoSqlite::ultimaChave() const
{
    const qint64 id = sqlite3_last_insert_rowid(m_db);
    return id ? QVariant(id) : QVariant();
}
