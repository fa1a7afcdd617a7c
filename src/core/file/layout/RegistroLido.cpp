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
    case LeituraCampo::MesAno: return t.size() == 6 ? t.mid(4, 2) + t.left(4) : t;
    case LeituraCampo::ZeroEsquerda: return naoNulo(Funcoes::ZeroEsquerda(t, c.tamanho));
    case LeituraCampo::Ignorado: return t;
    }
    return t;
}

namespace {
bool soDigitos(QStringView t)
{
    for (QChar c : t) {
        if (c.unicode() < u'0' || c.unicode() > u'9')
            return false;
    }
    return !t.isEmpty();
}
QStringView semZerosAEsquerda(QStringView digitos)
{
    qsizetype i = 0;
    while (i < digitos.size() && digitos.at(i) == QLatin1Char('0'))
        ++i;
    return digitos.mid(i);
}
}  // namespace

QStringView RegistroLido::lidoEm(const CampoLayout& c, QString& espaco) const
{
    const qsizetype inicio = c.posicao - 1;
    if (inicio + c.tamanho > m_linha.size()) {
        espaco = lido(c);
        return espaco;
    }
    const QStringView t = QStringView(m_linha).mid(inicio, c.tamanho);
    switch (c.leitura) {
    case LeituraCampo::ComoEsta:
        return t;
    case LeituraCampo::Aparado: {
        qsizetype a = 0, b = t.size();
        while (a < b && t.at(a) == QLatin1Char(' '))
            ++a;
        while (b > a && t.at(b - 1) == QLatin1Char(' '))
            --b;
        return t.mid(a, b - a);
    }
    case LeituraCampo::ZerosVazio:
        return soDigitos(t) && semZerosAEsquerda(t).isEmpty() ? QStringView() : t;
    case LeituraCampo::SemZerosEsquerda:
        if (soDigitos(t))
            return semZerosAEsquerda(t);
        break;
    case LeituraCampo::Decimal:
        if (soDigitos(t) && c.casas() > 0) {
            // InsereVirgula on the digits after the leading zeros.
            const QStringView v = semZerosAEsquerda(t);
            if (v.isEmpty())
                return QStringView();
            const qsizetype d = v.size() - c.casas();
            espaco.resize(0);
            if (d > 0) {
                espaco.append(v.left(d)).append(QLatin1Char(',')).append(v.mid(d));
            } else {
                espaco.append(QLatin1String("0,"));
                for (qsizetype i = d; i < 0; ++i)
                    espaco.append(QLatin1Char('0'));
                espaco.append(v);
            }
            return espaco;
        }
        break;
    case LeituraCampo::Data:
        if (t.size() == 8) {
            espaco.resize(0);
            espaco.append(t.mid(6, 2)).append(t.mid(4, 2)).append(t.left(4));
            return espaco;
        }
        return t;
    case LeituraCampo::MesAno:
    case LeituraCampo::ZeroEsquerda:
    case LeituraCampo::Ignorado:
        break;
    }
    espaco = lido(c);
    return espaco;
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
