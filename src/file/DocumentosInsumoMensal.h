#pragma once
// The entry documents of the inputs of a monthly declaration (records 34, 35, 36). They belong to the
// declaration, an input and a destination, not to one product, so every product that uses the input writes
// them again; they are read once per declaration and looked up by input and destination.
#include <QHash>
#include <QString>
#include <QStringList>
#include <QVector>

class DocumentosInsumoMensal {
public:
    explicit DocumentosInsumoMensal(const QString& idVrtMicro);

    using Linhas = QVector<QStringList>;
    // Rows in the order they were made; the columns are those of the queries in the .cpp (enums below).
    const Linhas& nfa(const QString& insumo, const QString& destino) const;
    const Linhas& di(const QString& insumo, const QString& destino) const;
    const Linhas& dsi(const QString& insumo, const QString& destino) const;

    enum ColunaNfa { NfaCnpj, NfaSerie, NfaNumero, NfaItem, NfaData, NfaCfop, NfaDl288, NfaQuantidade, NfaValor,
                     NfaInsumo, NfaDestino };
    enum ColunaDi { DiNumero, DiAntiga, DiAntigaNula, DiAdicao, DiItemAdicao, DiDl288, DiQuantidade, DiValor,
                    DiMoeda, DiFrete, DiMoedaFrete, DiSeguro, DiMoedaSeguro, DiInsumo, DiDestino, DiSuspensao };
    enum ColunaDsi { DsiNumero, DsiAntiga, DsiBem, DsiQuantidade, DsiInsumo, DsiDestino, DsiValor, DsiMoeda,
                     DsiFrete, DsiMoedaFrete, DsiSeguro, DsiMoedaSeguro, DsiSuspensao };

private:
    static QString chave(const QString& insumo, const QString& destino);
    static void carrega(QHash<QString, Linhas>& destino, const QString& sql, const QString& id, int colunas);
    const Linhas& procura(const QHash<QString, Linhas>& mapa, const QString& insumo, const QString& destino) const;

    QHash<QString, Linhas> m_nfa;
    QHash<QString, Linhas> m_di;
    QHash<QString, Linhas> m_dsi;
    Linhas m_vazio;
};
