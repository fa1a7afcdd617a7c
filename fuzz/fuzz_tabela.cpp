// The reference table import on any bytes, into the delivered database held in memory. It ends with one of its
// messages; a failed statement rolls the import back before the error routine ends the run, so that case
// must leave the database as it was.
#include "ApoioFuzz.h"

#include "core/refdata/modImportacao.h"
#include "core/session/modVRTPLN.h"
#include "core/store/modBancoDados.h"

// Before the first input, so that its time does not count against the first input.
extern "C" int LLVMFuzzerInitialize(int*, char***)
{
    ApoioFuzz::Inicia();
    ApoioFuzz::AbreBancoEmMemoria();
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* dados, size_t tamanho)
{
    QString pasta, nome;
    ApoioFuzz::GravaEntrada(dados, tamanho, pasta, nome);
    const QString antes = ApoioFuzz::Retrato();
    modVRTPLN::ArquivoImportaTabela = QStringLiteral("SIM");
    bool encerrou = false;
    try {
        modImportacao::ImportaTabela(pasta, nome);
    } catch (const modBancoDados::FimDaExecucao&) {
        encerrou = true;
    }
    if (modBancoDados::TransacaoAberta())
        ApoioFuzz::Falha("a importação deixou uma transação aberta");
    if (encerrou && ApoioFuzz::Retrato() != antes)
        ApoioFuzz::Falha("uma importação desfeita mudou o banco");
    ApoioFuzz::RestauraBanco();
    return 0;
}
