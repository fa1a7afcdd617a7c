#pragma once
// What every fuzz harness shares: a Qt application, message boxes answered without asking (and counted), the
// run's ending turned into an exception, the delivered database copied into memory as the session's
// connection, and the input bytes written to a file the readers can open.
#include <QString>
#include <cstddef>
#include <cstdint>

namespace ApoioFuzz {

// Once per process: the application, the message handler and the ending. Questions are answered Yes, so that
// the replacing of a declaration is reached too.
void Inicia();
// The delivered database, copied into memory, as the session's connection (once per process).
void AbreBancoEmMemoria();
// Puts every table back as delivered.
void RestauraBanco();
// A short picture of what a reader may touch: declarations, products, units, the numbering, every table's row
// count. Two equal pictures around a refused file mean that it left nothing behind.
QString Retrato();
// Writes the input to this process's work file and gives its folder and name.
void GravaEntrada(const uint8_t* dados, size_t tamanho, QString& pasta, QString& nome);
// Stops the process so that libFuzzer keeps the input: `motivo` says why.
[[noreturn]] void Falha(const char* motivo, const QString& detalhe = QString());

}  // namespace ApoioFuzz
