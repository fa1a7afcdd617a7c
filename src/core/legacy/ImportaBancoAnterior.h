#pragma once
// Bringing the old version's database into the present one: every declaration and the reference tables of the
// old file replace those of the present database, in one transaction, after the user has confirmed each loss.
// The old file is an Access (Jet) database read through libmdb; nothing of it is ever written.
#include <QString>
#include <QStringList>
#include <functional>

namespace BancoAnterior {

// Told the share of the tables copied so far, 0 to 100.
using Progresso = std::function<void(int percentual)>;

// The old database is known by its name alone: "pln_vrt.mdb" in any case. Another name is refused with the
// message that names the expected file, before the file is opened.
bool NomeAceito(const QString& nome);

// Imports `pasta`/`nome` into the session's database. Every question and message goes through MsgBox. True when
// the import was committed; false when the file is not the old version's, holds no declaration, the user said
// No, or reading it failed (the present data then stay as they were). A statement the present database refuses
// ends the run through BDTrataErro, and its transaction goes with it.
bool ImportaBancoAnterior(const QString& pasta, const QString& nome, const Progresso& progresso = {});

// The tables copied, in the order they go in: parents before children, so that every reference holds.
const QStringList& TabelasImportadas();

// The value a column the old version lacks receives, or a null QVariant when the old table must have it.
QVariant ValorAusente(const QString& tabela, const QString& coluna);

}  // namespace BancoAnterior
