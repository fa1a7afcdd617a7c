#pragma once
// The entry documents of the inputs of a monthly declaration (records 34, 35, 36). They belong to the
// declaration, an input and a destination, not to one product, so every product that uses the input writes
// them again; they are read and composed once per declaration and looked up by input and destination.
#include "core/file/writing/LinhaRegistro.h"

#include <QHash>
#include <QString>
#include <QVector>

class SaidaVrt;

class DocumentosInsumoMensal {
public:
    explicit DocumentosInsumoMensal(const QString& idVrtMicro);

    // Writes the documents of one input at one destination: acquisition invoices, DIs, DSIs, each kind in the
    // order its rows were made.
    void escreve(SaidaVrt& saida, const QString& insumo, const QString& destino);

private:
    struct Di {
        LinhaRegistro linha;
        bool semAntiga = false;  // the old DI number is missing (Null or one blank)
    };
    struct Grupo {
        QVector<LinhaRegistro> nfa;
        QVector<Di> di;
        QVector<LinhaRegistro> dsi;
    };
    static QString chave(const QString& insumo, const QString& destino);
    template <typename Poe>
    void carrega(int tipo, const QString& sql, const QString& id, Poe poe);

    QHash<QString, Grupo> m_grupos;
    // The old DI number of the last record 35 that had one: record 35 keeps it when its own is missing.
    QString m_diAntiga;
};
