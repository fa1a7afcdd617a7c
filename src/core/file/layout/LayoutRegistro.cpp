#include "core/file/layout/LayoutRegistro.h"

#include "core/file/layout/LayoutTabelas.h"

#include <QHash>

#include <array>
#include <QtGlobal>

int CampoLayout::casas() const
{
    switch (tipo) {
    case TipoCampo::D2: return 2;
    case TipoCampo::D5: return 5;
    case TipoCampo::D7: return 7;
    default: return 0;
    }
}

bool CampoLayout::numerico() const
{
    switch (tipo) {
    case TipoCampo::N:
    case TipoCampo::D2:
    case TipoCampo::D5:
    case TipoCampo::D7:
    case TipoCampo::DT:
    case TipoCampo::A:
        return true;
    default:
        return false;
    }
}

void LayoutRegistro::indexa()
{
    m_indices.clear();
    for (int i = 0; i < campos.size(); ++i)
        m_indices.insert(campos.at(i).nome, i);
}

int LayoutRegistro::indice(const QString& nome) const
{
    if (!m_indices.isEmpty())
        return m_indices.value(nome, -1);
    for (int i = 0; i < campos.size(); ++i) {
        if (campos.at(i).nome == nome)
            return i;
    }
    return -1;
}

const CampoLayout* LayoutRegistro::procura(const QString& nome) const
{
    const int i = indice(nome);
    return i < 0 ? nullptr : &campos.at(i);
}

const CampoLayout& LayoutRegistro::campo(const QString& nome) const
{
    const CampoLayout* c = procura(nome);
    if (!c)
        qFatal("Registro %s sem o campo %s", qPrintable(tipo), qPrintable(nome));
    return *c;
}

namespace {

using Tabela = QHash<QString, LayoutRegistro>;

Tabela indexa(const QVector<LayoutRegistro>& registros)
{
    Tabela t;
    for (const LayoutRegistro& r : registros)
        t.insert(r.tipo, r);
    return t;
}

const Tabela& tabelaDe(TipoDeclaracao declaracao)
{
    static const Tabela mensal = indexa(LayoutTabelas::mensal());
    static const Tabela individual = indexa(LayoutTabelas::individual());
    return declaracao == TipoDeclaracao::Mensal ? mensal : individual;
}

}  // namespace

const LayoutRegistro* LayoutRegistro::procura(TipoDeclaracao declaracao, const QString& tipo)
{
    const Tabela& t = tabelaDe(declaracao);
    const auto it = t.constFind(tipo);
    return it == t.constEnd() ? nullptr : &it.value();
}

const LayoutRegistro& LayoutRegistro::de(TipoDeclaracao declaracao, const QString& tipo)
{
    const LayoutRegistro* r = procura(declaracao, tipo);
    if (!r)
        qFatal("Tipo de registro desconhecido: %s", qPrintable(tipo));
    return *r;
}

const LayoutRegistro& LayoutRegistro::de(TipoDeclaracao declaracao, int tipo)
{
    static const auto monta = [](TipoDeclaracao d) {
        std::array<const LayoutRegistro*, 100> v{};
        for (const QString& t : tipos())
            v[t.toInt()] = procura(d, t);
        return v;
    };
    static const std::array<const LayoutRegistro*, 100> mensal = monta(TipoDeclaracao::Mensal);
    static const std::array<const LayoutRegistro*, 100> individual = monta(TipoDeclaracao::Individual);
    const LayoutRegistro* r = (tipo >= 0 && tipo < 100)
                                  ? (declaracao == TipoDeclaracao::Mensal ? mensal : individual)[tipo]
                                  : nullptr;
    if (!r)
        qFatal("Tipo de registro desconhecido: %d", tipo);
    return *r;
}

const QStringList& LayoutRegistro::tipos()
{
    static const QStringList lista = {
        QStringLiteral("00"), QStringLiteral("01"), QStringLiteral("02"), QStringLiteral("03"),
        QStringLiteral("11"), QStringLiteral("12"), QStringLiteral("13"), QStringLiteral("14"),
        QStringLiteral("21"), QStringLiteral("31"), QStringLiteral("32"), QStringLiteral("33"),
        QStringLiteral("34"), QStringLiteral("35"), QStringLiteral("36"), QStringLiteral("41")};
    return lista;
}

QString LayoutRegistro::nomeTipo(TipoCampo tipo)
{
    switch (tipo) {
    case TipoCampo::N: return QStringLiteral("N");
    case TipoCampo::X: return QStringLiteral("X");
    case TipoCampo::R: return QStringLiteral("R");
    case TipoCampo::D2: return QStringLiteral("D2");
    case TipoCampo::D5: return QStringLiteral("D5");
    case TipoCampo::D7: return QStringLiteral("D7");
    case TipoCampo::DT: return QStringLiteral("DT");
    case TipoCampo::K: return QStringLiteral("K");
    case TipoCampo::A: return QStringLiteral("A");
    }
    return QString();
}
