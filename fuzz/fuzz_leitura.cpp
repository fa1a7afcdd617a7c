// The declaration reader ("Importar VRT") on any bytes, into the delivered database held in memory. The reader
// may refuse a file with one of its messages; it must never end the run, and a refused file must leave the
// database exactly as it was.
#include "ApoioFuzz.h"

#include "core/file/reading/LeArquivoVrt.h"
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
    bool lido = false;
    try {
        lido = LeArquivoVrtEm(pasta, nome, ModoLeitura::Importar);
    } catch (const modBancoDados::FimDaExecucao& fim) {
        ApoioFuzz::Falha("o leitor encerrou a execução", fim.numero + QStringLiteral(": ") + fim.descricao);
    }
    if (modBancoDados::TransacaoAberta())
        ApoioFuzz::Falha("o leitor deixou uma transação aberta");
    if (lido)
        ApoioFuzz::RestauraBanco();
    else if (ApoioFuzz::Retrato() != antes)
        ApoioFuzz::Falha("um arquivo recusado mudou o banco", antes + QStringLiteral("\n") + ApoioFuzz::Retrato());
    return 0;
}
