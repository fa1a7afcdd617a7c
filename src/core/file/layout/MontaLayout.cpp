#include "core/file/layout/MontaLayout.h"

#include <QtGlobal>

MontaLayout::MontaLayout(const QString& tipo, int tamanho, const QString& tabela)
{
    m_registro.tipo = tipo;
    m_registro.tamanho = tamanho;
    m_registro.tabela = tabela;
}

MontaLayout& MontaLayout::ateTamanho()
{
    m_registro.tamanhoExato = false;
    return *this;
}

MontaLayout& MontaLayout::semFimDeLinha()
{
    m_registro.semFimDeLinha = true;
    return *this;
}

MontaLayout& MontaLayout::campo(int posicao, int tamanho, TipoCampo tipo, const QString& nome,
                                const QString& coluna, const QString& tabela)
{
    CampoLayout c;
    c.posicao = posicao;
    c.tamanho = tamanho;
    c.tipo = tipo;
    c.nome = nome;
    c.coluna = coluna.isNull() ? nome : coluna;
    c.tabela = tabela;
    switch (tipo) {
    case TipoCampo::R: c.leitura = LeituraCampo::Aparado; break;
    case TipoCampo::D2:
    case TipoCampo::D5:
    case TipoCampo::D7: c.leitura = LeituraCampo::Decimal; break;
    case TipoCampo::DT: c.leitura = LeituraCampo::Data; break;
    default: c.leitura = LeituraCampo::ComoEsta; break;
    }
    m_registro.campos.append(c);
    return *this;
}

MontaLayout& MontaLayout::le(LeituraCampo leitura)
{
    Q_ASSERT(!m_registro.campos.isEmpty());
    m_registro.campos.last().leitura = leitura;
    return *this;
}

MontaLayout& MontaLayout::constante(int posicao, int tamanho, const QString& nome, const QString& valor)
{
    CampoLayout c;
    c.posicao = posicao;
    c.tamanho = tamanho;
    c.tipo = TipoCampo::K;
    c.nome = nome;
    c.constante = valor;
    m_registro.campos.append(c);
    return *this;
}

MontaLayout& MontaLayout::tipoRegistro()
{
    return constante(1, 2, QStringLiteral("TIPO_REGISTRO"), m_registro.tipo);
}

MontaLayout& MontaLayout::zeros(int posicao, int tamanho)
{
    return constante(posicao, tamanho, QStringLiteral("ZEROS_%1").arg(posicao), QString(tamanho, u'0'));
}

MontaLayout& MontaLayout::brancos(int posicao, int tamanho)
{
    return constante(posicao, tamanho, QStringLiteral("BRANCOS_%1").arg(posicao), QString(tamanho, u' '));
}

MontaLayout& MontaLayout::fixo(int posicao, int tamanho, const QString& valor, const QString& nome)
{
    return constante(posicao, tamanho, nome.isEmpty() ? QStringLiteral("FIXO_%1").arg(posicao) : nome, valor);
}

LayoutRegistro MontaLayout::pronto() const
{
    int proxima = 1;
    for (const CampoLayout& c : m_registro.campos) {
        if (c.posicao != proxima || c.tamanho <= 0)
            qFatal("Registro %s: campo %s fora de lugar", qPrintable(m_registro.tipo), qPrintable(c.nome));
        if (c.tipo == TipoCampo::K && !c.constante.isEmpty() && c.constante.size() != c.tamanho)
            qFatal("Registro %s: constante de %s com tamanho errado", qPrintable(m_registro.tipo),
                   qPrintable(c.nome));
        proxima = c.fim() + 1;
    }
    if (proxima != m_registro.tamanho + 1)
        qFatal("Registro %s: os campos somam %d posições", qPrintable(m_registro.tipo), proxima - 1);
    LayoutRegistro pronto = m_registro;
    pronto.indexa();
    return pronto;
}
