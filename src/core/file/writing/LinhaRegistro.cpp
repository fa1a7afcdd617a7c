#include "core/file/writing/LinhaRegistro.h"

#include "core/rules/Formatadores.h"

#include <QHash>

using namespace Funcoes;

namespace {

// The empty form of every field of a layout, computed once per layout: records are written by the hundred
// thousand and most of their fields keep it.
const QVector<QString>& valoresIniciais(const LayoutRegistro& layout)
{
    static QHash<const LayoutRegistro*, QVector<QString>> cache;
    auto it = cache.find(&layout);
    if (it == cache.end()) {
        QVector<QString> v;
        v.reserve(layout.campos.size());
        for (const CampoLayout& c : layout.campos)
            v.append(LinhaRegistro::formata(c, QString()));
        it = cache.insert(&layout, v);
    }
    return it.value();
}

}  // namespace

LinhaRegistro::LinhaRegistro(const LayoutRegistro& layout)
    : m_layout(&layout), m_valores(valoresIniciais(layout))
{
}

QString LinhaRegistro::formata(const CampoLayout& campo, const QString& valor)
{
    switch (campo.tipo) {
    case TipoCampo::N:
        return ZeroEsquerda(valor, campo.tamanho);
    case TipoCampo::X:
        return BrancoDireita(valor, campo.tamanho);
    case TipoCampo::R:
        return BrancoEsquerda(valor, campo.tamanho);
    case TipoCampo::D2:
    case TipoCampo::D5:
    case TipoCampo::D7:
        return ZeroEsquerda(TiraCaractere(valor, QStringLiteral(",")), campo.tamanho);
    case TipoCampo::DT:
        return ZeroEsquerda(valor.mid(4, 4) + valor.mid(2, 2) + valor.mid(0, 2), 8);
    case TipoCampo::K:
        return valor.isNull() ? campo.constante : valor;
    case TipoCampo::A:
        return valor.isNull() ? QStringLiteral("") : valor;
    }
    return valor;
}

void LinhaRegistro::poe(const QString& nome, const QString& valor)
{
    const int i = m_layout->indice(nome);
    if (i < 0)
        qFatal("Registro %s sem o campo %s", qPrintable(m_layout->tipo), qPrintable(nome));
    m_valores[i] = formata(m_layout->campos.at(i), valor);
}

void LinhaRegistro::poeComoEsta(const QString& nome, const QString& texto)
{
    const int i = m_layout->indice(nome);
    if (i < 0)
        qFatal("Registro %s sem o campo %s", qPrintable(m_layout->tipo), qPrintable(nome));
    m_valores[i] = texto;
}

QString LinhaRegistro::valor(const QString& nome) const
{
    return m_valores.at(m_layout->indice(nome));
}

QString LinhaRegistro::texto() const
{
    QString s;
    compoeEm(s, 1);
    return s;
}

int LinhaRegistro::compoeEm(QString& destino, int coluna) const
{
    // Each field is placed at its own column, as the old writer's tabulation did: blanks up to the column, or,
    // when an earlier value ran past it, a line end and blanks up to the column on the new line.
    for (int i = 0; i < m_valores.size(); ++i) {
        const int posicao = m_layout->campos.at(i).posicao;
        if (coluna > posicao) {
            destino += QLatin1String("\r\n");
            coluna = 1;
        }
        if (coluna < posicao)
            destino.append(QString(posicao - coluna, QLatin1Char(' ')));
        destino += m_valores.at(i);
        coluna = posicao + m_valores.at(i).size();
    }
    return coluna;
}
