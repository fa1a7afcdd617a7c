#pragma once
// The entry documents of the inputs of a monthly declaration (records 34, 35, 36). They belong to the
// declaration, an input and a destination, not to one product, so every product that uses the input writes
// them again; they are read once per declaration, looked up by input and destination, and composed as written.
#include "core/file/writing/LinhaRegistro.h"
#include "core/file/writing/LinhasGuardadas.h"
#include "core/file/writing/MapaColunas.h"

#include <QHash>
#include <QPair>
#include <QString>

class SaidaVrt;

class DocumentosInsumoMensal {
public:
    explicit DocumentosInsumoMensal(const QString& idVrtMicro);

    // Writes the documents of one input at one destination: acquisition invoices, DIs, DSIs, each kind in the
    // order its rows were made.
    void escreve(SaidaVrt& saida, const QString& insumo, const QString& destino);

private:
    // One kind of document: its rows, kept as read, composed into its record when written.
    struct Tipo {
        explicit Tipo(int tipo);
        LinhasGuardadas linhas;
        LinhaRegistro registro;
        MapaColunas mapa;
        LinhaRegistro& compoe(int linha);
    };
    // The rows of one input at one destination in each kind.
    using Faixa = LinhasGuardadas::Faixa;
    struct Grupo {
        Faixa nfa, di, dsi;
    };
    void carrega(Tipo& tipo, Faixa Grupo::*faixa, const QString& sql, const QString& id);

    Tipo m_nfa, m_di, m_dsi;
    QHash<QPair<QString, QString>, Grupo> m_grupos;  // by input and destination
    // The old DI number of the last record 35 that had one: record 35 keeps it when its own is missing.
    QString m_diAntiga;
};
