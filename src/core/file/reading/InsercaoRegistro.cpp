#include "core/file/reading/InsercaoRegistro.h"

#include "core/file/layout/LayoutRegistro.h"
#include "core/file/layout/RegistroLido.h"
#include "core/store/ComandoSqlite.h"
#include "core/store/ComandosPreparados.h"

#include <QtGlobal>

InsercaoRegistro::InsercaoRegistro(const LayoutRegistro& layout, const QString& tabela,
                                   const QStringList& colunasAntes, const QStringList& camposDeFora)
    : m_layout(layout), m_layouts{&layout}, m_antes(int(colunasAntes.size())), m_colunas(colunasAntes)
{
    acrescenta(0, tabela, camposDeFora);
    if (m_campos.size() == 0 && m_antes == 0)
        qFatal("Registro %s sem campos da tabela %s", qPrintable(layout.tipo), qPrintable(tabela));
    m_sql = monta(tabela, m_colunas);
}

InsercaoRegistro::InsercaoRegistro(const QVector<const LayoutRegistro*>& layouts, const QString& tabela,
                                   const QStringList& colunasAntes)
    : m_layout(*layouts.first()), m_layouts(layouts), m_antes(int(colunasAntes.size())), m_colunas(colunasAntes)
{
    for (int r = 0; r < layouts.size(); ++r)
        acrescenta(r, tabela, {});
    for (int i = 0; i < m_colunas.size(); ++i) {
        if (m_colunas.indexOf(m_colunas.at(i), i + 1) > 0)
            qFatal("Coluna %s de %s dada por dois registros", qPrintable(m_colunas.at(i)), qPrintable(tabela));
    }
    m_sql = monta(tabela, m_colunas);
}

void InsercaoRegistro::acrescenta(int registro, const QString& tabela, const QStringList& camposDeFora)
{
    const LayoutRegistro& layout = *m_layouts.at(registro);
    for (int i = 0; i < layout.campos.size(); ++i) {
        const CampoLayout& c = layout.campos.at(i);
        if (c.coluna.isEmpty() || c.tipo == TipoCampo::K || c.leitura == LeituraCampo::Ignorado)
            continue;
        if (c.tabelaDe(layout.tabela) != tabela && !camposDeFora.contains(c.nome))
            continue;
        m_campos.append(i);
        m_registros.append(registro);
        m_colunas.append(c.coluna);
    }
}

const LayoutRegistro& InsercaoRegistro::campoDe(int k) const
{
    return *m_layouts.at(m_registros.at(k));
}

QString InsercaoRegistro::monta(const QString& tabela, const QStringList& colunas)
{
    QStringList marcas;
    for (int i = 0; i < colunas.size(); ++i)
        marcas << QStringLiteral("?");
    return QStringLiteral("INSERT INTO ") + tabela + QStringLiteral(" (") + colunas.join(QStringLiteral(", ")) +
           QStringLiteral(") VALUES (") + marcas.join(QStringLiteral(", ")) + QLatin1Char(')');
}

QVariantList InsercaoRegistro::valores(const RegistroLido& registro, const QVariantList& antes) const
{
    Q_ASSERT(antes.size() == m_antes && m_layouts.size() == 1);
    QVariantList v;
    v.reserve(m_colunas.size());
    v.append(antes);
    for (int i : m_campos)
        v.append(registro.lido(m_layout.campos.at(i)));
    return v;
}

QVariantList InsercaoRegistro::valores(const QVector<const RegistroLido*>& registros, const QVariantList& antes) const
{
    Q_ASSERT(antes.size() == m_antes && registros.size() == m_layouts.size());
    QVariantList v;
    v.reserve(m_colunas.size());
    v.append(antes);
    for (int k = 0; k < m_campos.size(); ++k) {
        const RegistroLido& r = *registros.at(m_registros.at(k));
        Q_ASSERT(&r.layout() == m_layouts.at(m_registros.at(k)));
        v.append(r.lido(campoDe(k).campos.at(m_campos.at(k))));
    }
    return v;
}

int InsercaoRegistro::posicao(const QString& campo) const
{
    for (int k = 0; k < m_campos.size(); ++k) {
        if (campoDe(k).campos.at(m_campos.at(k)).nome == campo)
            return m_antes + k;
    }
    qFatal("Registro %s: o campo %s não vai para esta tabela", qPrintable(m_layout.tipo), qPrintable(campo));
    return -1;
}

void InsercaoRegistro::executa(ComandosPreparados& comandos, const QVariantList& valores) const
{
    comandos.executa(m_sql, valores);
}

void InsercaoRegistro::executa(ComandosPreparados& comandos, const RegistroLido& registro,
                               const QVariantList& antes) const
{
    // The fields are bound straight from the line, without a list of values: this runs once per record.
    Q_ASSERT(antes.size() == m_antes && m_layouts.size() == 1);
    if (m_de != &comandos) {
        m_comando = &comandos.comando(m_sql);
        m_de = &comandos;
    }
    ComandoSqlite& c = *m_comando;
    c.inicia();
    for (int i = 0; i < m_antes; ++i) {
        const QVariant& v = antes.at(i);
        // As ComandosPreparados binds them: a null text is an empty one.
        if (v.typeId() == QMetaType::QString)
            c.ligaTexto(i, *static_cast<const QString*>(v.constData()));
        else
            c.liga(i, v);
    }
    for (int k = 0; k < m_campos.size(); ++k)
        c.ligaTexto(m_antes + k, registro.lidoEm(m_layout.campos.at(m_campos.at(k)), m_espaco));
    comandos.executaLigado(c);
}
