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
    // The documents of one input at one destination, each kind in the order its rows were made; the columns
    // are those of the queries in the .cpp (enums below).
    struct Grupo {
        Linhas nfa;
        Linhas di;
        Linhas dsi;
    };
    const Grupo& de(const QString& insumo, const QString& destino) const;

    enum ColunaNfa { NfaCnpj, NfaSerie, NfaNumero, NfaItem, NfaData, NfaCfop, NfaDl288, NfaQuantidade, NfaValor,
                     NfaInsumo, NfaDestino };
    enum ColunaDi { DiNumero, DiAntiga, DiAntigaNula, DiAdicao, DiItemAdicao, DiDl288, DiQuantidade, DiValor,
                    DiMoeda, DiFrete, DiMoedaFrete, DiSeguro, DiMoedaSeguro, DiInsumo, DiDestino, DiSuspensao };
    enum ColunaDsi { DsiNumero, DsiAntiga, DsiBem, DsiQuantidade, DsiInsumo, DsiDestino, DsiValor, DsiMoeda,
                     DsiFrete, DsiMoedaFrete, DsiSeguro, DsiMoedaSeguro, DsiSuspensao };

private:
    static QString chave(const QString& insumo, const QString& destino);
    void carrega(Linhas Grupo::*tipo, const QString& sql, const QString& id, int colunas);

    QHash<QString, Grupo> m_grupos;
    Grupo m_vazio;
};
