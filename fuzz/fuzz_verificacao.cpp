// The file checker of "vrt-cli verificar" on any bytes: it lists problems and never touches the database.
#include "ApoioFuzz.h"

#include "core/file/checking/VerificaArquivoVrt.h"

extern "C" int LLVMFuzzerInitialize(int*, char***)
{
    ApoioFuzz::Inicia();
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* dados, size_t tamanho)
{
    QString pasta, nome;
    ApoioFuzz::GravaEntrada(dados, tamanho, pasta, nome);
    VerificaArquivoVrt verificacao;
    verificacao.verifica(pasta + QLatin1Char('/') + nome);
    for (const ProblemaArquivo& p : verificacao.problemas()) {
        if (p.texto().isEmpty())
            ApoioFuzz::Falha("problema sem texto");
    }
    return 0;
}
