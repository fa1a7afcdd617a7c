#pragma once
// The members of the entry-document family, one file per document kind (MembrosDI.cpp, MembrosDSI.cpp,
// MembrosNFA.cpp); only the table of MembroDocumento.cpp uses them. Each kind is described once for its four
// members: what differs between them stands in a row of four values, in the order of Membros below.
#include "gui/items/MembroDocumento.h"

#include <array>

namespace MembrosFamilia {

// One value for each member of a kind: foreign product monthly, foreign product individual, input monthly, input
// individual. nullptr: the member has none.
using Quatro = std::array<const char*, 4>;

// The position of a member in a Quatro.
inline int Indice(Origem origem, bool individual)
{
    return (origem == Origem::Insumo ? 2 : 0) + (individual ? 1 : 0);
}

inline QString Um(const Quatro& q, int k)
{
    return q.at(k) ? QString::fromUtf8(q.at(k)) : QString();
}

inline QString t(const char* s)
{
    return QString::fromUtf8(s);
}

// The words the kinds share.
inline const QString MaiorQueZero = t("Campo deve ser maior que zero.");
inline const QString ZeroIgual = t("Este campo não pode ser igual a zero.");
inline const QString Invalido = t("Campo inválido.");
inline const QString SeisDigitos = t("Informe número de 6 dígitos.");
inline const QString AntigaVazia = t("Os campos ano, órgão e seqüencial devem ser preenchidos.");

// The key of the row a line belongs to: the product's destination, the invoice item, the input of a declaration at
// its place, the input of an item.
inline QStringList ChavePai(int k)
{
    static const QList<QStringList> pais{{t("ID_DEST_PRODUTO")},
                                         {t("ID_ITEM")},
                                         {t("ID_VRT_MICRO"), t("CD_INT_INSUMO"), t("CD_LOCAL_DESTINO")},
                                         {t("ID_INSUMO")}};
    return pais.at(k);
}

// The commercial quantity's column, alike in every kind.
inline constexpr Quatro ColunaQuantidade{"QT_PROD_UNID_PROD", "QT_PROD_UNID_NFS", "QT_INSUMO_UNID_INS",
                                         "QT_INSUMO_UNID_NFS"};

// A part of the frame and its four values (a control's name, a column).
struct PorPapel {
    Papel papel;
    Quatro valores;
};

// The parts the member `k` has, with its value of each.
inline QMap<Papel, QString> Mapa(const QList<PorPapel>& tabela, int k)
{
    QMap<Papel, QString> m;
    for (const PorPapel& p : tabela)
        if (p.valores.at(k))
            m.insert(p.papel, QString::fromUtf8(p.valores.at(k)));
    return m;
}

// A member of a kind ("DI", "DSI", "NFA") with what every kind names alike: its frame, the label of its quantity
// and its grid.
inline MembroDocumento Inicia(TipoDocumento tipo, Origem origem, bool individual, const QString& nome)
{
    MembroDocumento m;
    m.tipo = tipo;
    m.origem = origem;
    m.individual = individual;
    const bool insumo = origem == Origem::Insumo;
    const QString aba = insumo ? QStringLiteral("_tabPIsemPPB") : QStringLiteral("_tabProdutoEstrangeiro");
    m.nomeQuadro = QStringLiteral("fra") + nome + aba;
    m.nomeRotuloQuantidade = QStringLiteral("lblQuantidade") + nome + (insumo ? QStringLiteral("_PIsemPPB") : QStringLiteral("_PE"));
    m.nomeGrade = QStringLiteral("grdConsulta") + nome + aba;
    // The individual editor asks for the product (input) before Incluir; both editors for a row before Alterar
    // and Excluir.
    if (individual)
        m.msgSemPai = insumo ? QStringLiteral("Não foi escolhido insumo para documento de origem.")
                             : QStringLiteral("Não foi escolhido produto para documento de origem.");
    m.msgSemSelecaoAlterar = individual ? QStringLiteral("Inclua ou selecione um documento.")
                                        : QStringLiteral("Inclua um documento ou selecione no grid");
    m.msgSemSelecaoExcluir = m.msgSemSelecaoAlterar;
    return m;
}

// The names that the DI and the DSI build alike from their kind ("DI", "DSI"): the choice "Eletrônica", the
// suspension and the three value blocks (txtMoedaDSI_PIsemPPB(0), mskVlUnitMedidaDI_PE(2), ...).
inline void PoeNomesDeclaracao(MembroDocumento& m, const QString& tipo)
{
    const bool insumo = m.origem == Origem::Insumo;
    const QString aba = insumo ? QStringLiteral("_tabPIsemPPB_") : QStringLiteral("_tabProdutoEstrangeiro_");
    const QString blocos = tipo + (insumo ? QStringLiteral("_PIsemPPB(%1)") : QStringLiteral("_PE(%1)"));
    m.nomes.insert(Papel::Sim, QStringLiteral("optPosterior1997") + aba + tipo);
    m.nomes.insert(Papel::Nao, QStringLiteral("optAnterior1997") + aba + tipo);
    m.nomes.insert(Papel::Suspensao, QStringLiteral("chk_Suspensao_") + tipo
                                         + (insumo ? QStringLiteral("_TabPIsemPPB") : QStringLiteral("_TabPE")));
    for (int i = 0; i < 3; ++i) {
        m.nomes.insert(static_cast<Papel>(static_cast<int>(Papel::Moeda0) + i), (QStringLiteral("txtMoeda") + blocos).arg(i));
        m.nomes.insert(static_cast<Papel>(static_cast<int>(Papel::Valor0) + i),
                       (QStringLiteral("mskVlUnitMedida") + blocos).arg(i));
    }
}

// The currency picker's caller keys of the three value blocks, from the member's prefix ("InsumoPISemPPBMensalDI").
inline QStringList ChavesMoeda(const QString& prefixo, Origem origem)
{
    return {prefixo + (origem == Origem::Insumo ? QStringLiteral("Ins") : QStringLiteral("Prod")),
            prefixo + QStringLiteral("FI"), prefixo + QStringLiteral("SI")};
}

inline QStringList TitulosBlocos(Origem origem)
{
    return {origem == Origem::Insumo ? QStringLiteral("Insumo") : QStringLiteral("Produto"),
            QStringLiteral("Frete Internacional"), QStringLiteral("Seguro Internacional")};
}

// The first columns of a grid: what the page chose (product or input, place or item).
inline QList<ColunaDocumento> ColunasDoPai(Origem origem, bool individual)
{
    const bool insumo = origem == Origem::Insumo;
    if (!individual)
        return {{insumo ? QStringLiteral("Código do insumo") : QStringLiteral("Código do produto"),
                 QStringLiteral("#produto"), QString(), 110},
                {QStringLiteral("Local de destino"), QStringLiteral("#local"), QString(), 130}};
    if (insumo)
        return {{QStringLiteral("Código do Insumo"), QStringLiteral("#produto"), QString(), 110}};
    return {{QStringLiteral("Item"), QStringLiteral("#item"), QString(), 40},
            {QStringLiteral("Código do Produto"), QStringLiteral("#produto"), QString(), 110}};
}

// Every kind's value blocks: the currency of each in the line or in its child row, under the same names.
inline const QList<PorPapel>& Moedas()
{
    static const QList<PorPapel> m{
        {Papel::Moeda0, {"CD_MOEDA_NEG", "CD_MOEDA_NEG", "CD_MOEDA_NEG", "CD_MOEDA_NEG"}},
        {Papel::Moeda1, {"CD_MOEDA_FRETE", "CD_MOEDA_FRETE", "CD_MOEDA_FRETE", "CD_MOEDA_FRETE"}},
        {Papel::Moeda2, {"CD_MOEDA_SEGURO", "CD_MOEDA_SEGURO", "CD_MOEDA_SEGURO", "CD_MOEDA_SEGURO"}}};
    return m;
}

// The members of each kind.
MembroDocumento di(Origem origem, bool individual);
MembroDocumento dsi(Origem origem, bool individual);
MembroDocumento nfa(Origem origem, bool individual);

}  // namespace MembrosFamilia
