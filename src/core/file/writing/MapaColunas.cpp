#include "core/file/writing/MapaColunas.h"

#include "core/file/layout/LayoutRegistro.h"
#include "core/store/ComandoSqlite.h"

#include <QSet>

namespace {

// Every field name of every record of both declarations.
const QSet<QString>& camposDoFormato()
{
    static const QSet<QString> nomes = [] {
        QSet<QString> n;
        for (const TipoDeclaracao d : {TipoDeclaracao::Mensal, TipoDeclaracao::Individual}) {
            for (const QString& tipo : LayoutRegistro::tipos()) {
                if (const LayoutRegistro* l = LayoutRegistro::procura(d, tipo)) {
                    for (const CampoLayout& c : l->campos)
                        n.insert(c.nome);
                }
            }
        }
        return n;
    }();
    return nomes;
}

// Every column name of every table of the session's database, read once per connection.
const QSet<QString>& colunasDoBanco()
{
    static const sqlite3* conexao = nullptr;
    static QSet<QString> nomes;
    if (conexao != ComandoSqlite::conexao()) {
        nomes.clear();
        ComandoSqlite c(QStringLiteral("SELECT DISTINCT p.name FROM sqlite_master t, pragma_table_info(t.name) p "
                                       "WHERE t.type = 'table'"));
        c.abre({});
        while (c.proxima())
            nomes.insert(c.texto(0));
        conexao = ComandoSqlite::conexao();
    }
    return nomes;
}

bool semMotivo(const QString& nome)
{
    return !nome.startsWith(QLatin1Char('_')) && !camposDoFormato().contains(nome) && !colunasDoBanco().contains(nome);
}

}  // namespace

MapaColunas::MapaColunas(const LayoutRegistro& layout, const ComandoSqlite& consulta)
{
    const QStringList erradas = semCampo(layout, consulta);
    if (!erradas.isEmpty())
        qFatal("Registro %s: colunas sem campo: %s", qPrintable(layout.tipo), qPrintable(erradas.join(u',')));
    for (int c = 0; c < consulta.colunas(); ++c) {
        const int campo = layout.indice(consulta.nomeColuna(c));
        if (campo >= 0 && layout.campos.at(campo).tipo != TipoCampo::K)
            m_pares.append({campo, c});
    }
}

QStringList MapaColunas::semCampo(const LayoutRegistro& layout, const ComandoSqlite& consulta)
{
    QStringList erradas;
    for (int c = 0; c < consulta.colunas(); ++c) {
        const QString nome = consulta.nomeColuna(c);
        if (layout.indice(nome) < 0 && semMotivo(nome))
            erradas << nome;
    }
    return erradas;
}
