#include "file/LinhaRegistro.h"

#include "rules/Formatadores.h"

#include <QHash>
#include <QtGlobal>

namespace {
// Field names resolved once per layout: a large file asks for the same dozen fields a hundred thousand times.
const CampoLayout& resolve(const LayoutRegistro& layout, const QString& nome)
{
    static QHash<const LayoutRegistro*, QHash<QString, int>> indices;
    QHash<QString, int>& porNome = indices[&layout];
    if (porNome.isEmpty()) {
        for (int i = 0; i < layout.campos.size(); ++i)
            porNome.insert(layout.campos.at(i).nome, i);
    }
    const auto it = porNome.constFind(nome);
    if (it == porNome.constEnd())
        qFatal("Registro %s sem o campo %s", qPrintable(layout.tipo), qPrintable(nome));
    return layout.campos.at(it.value());
}

QString naoNulo(const QString& s)
{
    return s.isNull() ? QString(QLatin1String("")) : s;
}
}  // namespace

LinhaRegistro::LinhaRegistro(const QString& linha, const LayoutRegistro& layout)
    : m_linha(linha), m_layout(layout)
{
}

const CampoLayout& LinhaRegistro::campo(const QString& nome) const
{
    return resolve(m_layout, nome);
}

QString LinhaRegistro::texto(const QString& nome) const
{
    return naoNulo(campo(nome).de(m_linha));
}

QString LinhaRegistro::aparado(const QString& nome) const
{
    return naoNulo(texto(nome).trimmed());
}

QString LinhaRegistro::semZeros(const QString& nome) const
{
    const QString t = texto(nome);
    return soZeros(t) ? QString(QLatin1String("")) : t;
}

QString LinhaRegistro::semZerosEsquerda(const QString& nome) const
{
    return naoNulo(Funcoes::TiraZerosEsquerda(texto(nome)));
}

QString LinhaRegistro::decimal(const QString& nome) const
{
    const CampoLayout& c = campo(nome);
    return naoNulo(Funcoes::InsereVirgula(Funcoes::TiraZerosEsquerda(c.de(m_linha)), c.casas()));
}

QString LinhaRegistro::data(const QString& nome) const
{
    return dataDoArquivo(texto(nome));
}

bool LinhaRegistro::zeros(const QString& nome) const
{
    return soZeros(texto(nome));
}

bool LinhaRegistro::brancos(const QString& nome) const
{
    return soBrancos(texto(nome));
}

bool LinhaRegistro::soZeros(const QString& texto)
{
    if (texto.isEmpty())
        return false;
    for (QChar c : texto) {
        if (c != QLatin1Char('0'))
            return false;
    }
    return true;
}

bool LinhaRegistro::soBrancos(const QString& texto)
{
    for (QChar c : texto) {
        if (c != QLatin1Char(' '))
            return false;
    }
    return true;
}

QString LinhaRegistro::dataDoArquivo(const QString& d)
{
    if (d.size() != 8)
        return naoNulo(d);
    return d.mid(6, 2) + d.mid(4, 2) + d.left(4);
}
