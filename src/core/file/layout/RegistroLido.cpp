#include "core/file/layout/RegistroLido.h"

#include "core/rules/Formatadores.h"

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

// TiraZerosEsquerda for the common case of a field of digits only, without its general number reading (which
// costs more than the rest of a record): all zeros give an empty text, else the digits after the leading zeros.
QString tiraZerosEsquerda(const QString& t)
{
    if (t.isEmpty())
        return Funcoes::TiraZerosEsquerda(t);
    int zeros = -1;
    for (int i = 0; i < t.size(); ++i) {
        const char16_t c = t.at(i).unicode();
        if (c < u'0' || c > u'9')
            return Funcoes::TiraZerosEsquerda(t);
        if (zeros < 0 && c != u'0')
            zeros = i;
    }
    return zeros < 0 ? QString(QLatin1String("")) : t.mid(zeros);
}
}  // namespace

RegistroLido::RegistroLido(const QString& linha, const LayoutRegistro& layout)
    : m_linha(linha), m_layout(layout)
{
}

const CampoLayout& RegistroLido::campo(const QString& nome) const
{
    return resolve(m_layout, nome);
}

QString RegistroLido::texto(const QString& nome) const
{
    return naoNulo(campo(nome).de(m_linha));
}

QString RegistroLido::aparado(const QString& nome) const
{
    return naoNulo(Funcoes::TiraBrancos(texto(nome)));
}

QString RegistroLido::semZeros(const QString& nome) const
{
    const QString t = texto(nome);
    return soZeros(t) ? QString(QLatin1String("")) : t;
}

QString RegistroLido::semZerosEsquerda(const QString& nome) const
{
    return naoNulo(tiraZerosEsquerda(texto(nome)));
}

QString RegistroLido::decimal(const QString& nome) const
{
    const CampoLayout& c = campo(nome);
    return naoNulo(Funcoes::InsereVirgula(tiraZerosEsquerda(c.de(m_linha)), c.casas()));
}

QString RegistroLido::data(const QString& nome) const
{
    return dataDoArquivo(texto(nome));
}

QString RegistroLido::lido(const CampoLayout& c) const
{
    const QString t = naoNulo(c.de(m_linha));
    switch (c.leitura) {
    case LeituraCampo::ComoEsta: return t;
    case LeituraCampo::Aparado: return naoNulo(Funcoes::TiraBrancos(t));
    case LeituraCampo::ZerosVazio: return soZeros(t) ? QString(QLatin1String("")) : t;
    case LeituraCampo::SemZerosEsquerda: return naoNulo(tiraZerosEsquerda(t));
    case LeituraCampo::Decimal: return naoNulo(Funcoes::InsereVirgula(tiraZerosEsquerda(t), c.casas()));
    case LeituraCampo::Data: return dataDoArquivo(t);
    }
    return t;
}

QString RegistroLido::lido(const QString& nome) const
{
    return lido(campo(nome));
}

bool RegistroLido::zeros(const QString& nome) const
{
    return soZeros(texto(nome));
}

bool RegistroLido::brancos(const QString& nome) const
{
    return soBrancos(texto(nome));
}

bool RegistroLido::soZeros(const QString& texto)
{
    if (texto.isEmpty())
        return false;
    for (QChar c : texto) {
        if (c != QLatin1Char('0'))
            return false;
    }
    return true;
}

bool RegistroLido::soBrancos(const QString& texto)
{
    for (QChar c : texto) {
        if (c != QLatin1Char(' '))
            return false;
    }
    return true;
}

QString RegistroLido::dataDoArquivo(const QString& d)
{
    if (d.size() != 8)
        return naoNulo(d);
    return d.mid(6, 2) + d.mid(4, 2) + d.left(4);
}
