#pragma once
// Copying a declaration, whole, under a new identification: as a new declaration of its own ("Original") or as
// the rectification of the one copied ("Retificadora"). The chooser's copy panel and vrt-cli both copy through
// ExecutaCopiaVrtMensal / ExecutaCopiaVrtIndividual:
//   const QString nova = Funcoes::IdentificacaoPrevista();  // shown before the copy, read back by it
//   CopiaVrt::ExecutaCopiaVrtMensal({origem, nova, QStringLiteral("0812345678"), CopiaVrt::Tipo::Retificadora});
// Each routine replaces the session's connection with a fresh one to the database file, copies every row and
// advances the number in one transaction, shows its success message and commits. A failed statement ends the
// run through BDTrataErro: the copy and the number are lost together.
#include <QDate>
#include <QString>
#include <functional>

namespace CopiaVrt {

enum class Tipo { Original, Retificadora };

struct Pedido {
    QString origem;     // ID_VRT_MICRO of the declaration copied
    QString novaId;     // the new identification, as shown to the user (trimmed here)
    QString numeroVrt;  // NR_VRT of the copy (trimmed here), in both kinds of copy
    Tipo tipo = Tipo::Original;
};

// What a screen shows while the copy runs. Every member may be left empty.
struct Acompanhamento {
    std::function<void()> inicio;                      // the progress bar and the running text come into view
    std::function<void(int)> progresso;                // 0 to 100, after each group of tables
    std::function<void(const QString&)> situacao;      // the running text: "** Cópia concluída **" at the end
};

void ExecutaCopiaVrtMensal(const Pedido& pedido, const Acompanhamento& acompanhamento = {});
void ExecutaCopiaVrtIndividual(const Pedido& pedido, const Acompanhamento& acompanhamento = {});

// The two ways of advancing ARQUIVO_NUMERADOR, kept apart as the system has them: the monthly copy adds one
// whatever the year (and does nothing without a row); the individual copy restarts at 1 when the stored year is
// not the year of `hoje`, and makes the row when there is none.
void AvancaNumeroMensal();
void AvancaNumeroIndividual(const QDate& hoje);

}  // namespace CopiaVrt
