#include "cli/OpcoesCli.h"

namespace {
QString s(const char* t)
{
    return QString::fromUtf8(t);
}
}  // namespace

OpcoesCli OpcoesCli::le(const QStringList& args)
{
    OpcoesCli o;
    for (int i = 1; i < args.size(); ++i) {
        const QString& a = args.at(i);
        if (a == s("--help") || a == s("-h") || a == s("ajuda")) {
            o.ajuda = true;
        } else if (a == s("--banco") || a == s("--pasta") || a == s("--retificacao")) {
            if (i + 1 >= args.size()) {
                o.erro = s("a opção ") + a + s(" precisa de um valor");
                return o;
            }
            (a == s("--banco") ? o.banco : a == s("--pasta") ? o.pasta : o.retificacao) = args.at(++i);
        } else if (a == s("--backup")) {
            o.backup = true;
        } else if (a == s("--restaurar")) {
            o.restaurar = true;
        } else if (a == s("--substituir")) {
            o.substituir = true;
        } else if (a.startsWith(s("--"))) {
            o.erro = s("opção desconhecida: ") + a;
            return o;
        } else if (o.comando.isEmpty()) {
            o.comando = a;
        } else {
            o.argumentos << a;
        }
    }
    if (o.ajuda)
        return o;
    const QStringList comandos = {s("banco-anterior"), s("copiar"), s("gravar"), s("importar"), s("listar"), s("verificar"),
                                 s("tabela")};
    if (o.comando.isEmpty()) {
        o.erro = s("falta o comando");
    } else if (!comandos.contains(o.comando)) {
        o.erro = s("comando desconhecido: ") + o.comando;
    } else if (o.comando == s("gravar")) {
        if (o.argumentos.isEmpty())
            o.erro = s("gravar precisa de ao menos uma identificação");
        else if (o.pasta.isEmpty())
            o.erro = s("gravar precisa de --pasta DIR");
    } else if (o.comando == s("importar") || o.comando == s("verificar") || o.comando == s("tabela")
               || o.comando == s("banco-anterior")) {
        if (o.argumentos.size() != 1)
            o.erro = o.comando + s(" precisa de exatamente um ARQUIVO");
    } else if (o.comando == s("copiar")) {
        if (o.argumentos.size() != 1)
            o.erro = s("copiar precisa de exatamente uma identificação");
    } else if (o.comando == s("listar") && !o.argumentos.isEmpty()) {
        o.erro = s("listar não recebe argumentos");
    }
    if (o.erro.isEmpty() && o.restaurar && o.comando != s("importar"))
        o.erro = s("--restaurar serve só a importar");
    if (o.erro.isEmpty() && o.substituir && o.comando != s("importar") && o.comando != s("banco-anterior"))
        o.erro = s("--substituir serve só a importar e banco-anterior");
    if (o.erro.isEmpty() && o.backup && o.comando != s("gravar"))
        o.erro = s("--backup serve só a gravar");
    if (o.erro.isEmpty() && !o.pasta.isEmpty() && o.comando != s("gravar"))
        o.erro = s("--pasta serve só a gravar");
    if (o.erro.isEmpty() && !o.retificacao.isNull() && o.comando != s("copiar"))
        o.erro = s("--retificacao serve só a copiar");
    return o;
}

QString TextoAjuda()
{
    return s("uso: vrt-cli COMANDO [ARGUMENTOS] [OPÇÕES]\n"
             "\n"
             "Companheiro de linha de comando do VRT - Vistoria de Remessa Tributada, sobre o mesmo banco de dados\n"
             "do programa (PLN_VRT_v2.mdb ao lado do executável, salvo --banco).\n"
             "\n"
             "Comandos:\n"
             "  banco-anterior ARQUIVO [--substituir]\n"
             "        traz as declarações e as tabelas do banco de dados da versão 1.0 (pln_vrt.mdb), numa única\n"
             "        transação, como \"Importar Banco de Dados da Versão 1.0\"; --substituir responde Sim à\n"
             "        exclusão das VRTs e à substituição das tabelas já existentes; sem ela, nada muda\n"
             "  copiar ID [--retificacao NUMERO]\n"
             "        copia a declaração inteira com a próxima identificação, que sai em stdout: sem opção, como\n"
             "        \"Original\" (nova declaração, com o mês de referência ou a nota fiscal a preencher); com\n"
             "        --retificacao, como \"Retificadora\", com NUMERO (AA/NNNNNNN-D) como número da VRT\n"
             "  gravar ID... --pasta DIR [--backup]\n"
             "        grava as declarações para transmissão (origem 1) ou, com --backup, como backup (origem 3),\n"
             "        um arquivo por declaração, com o nome da identificação sem a barra (00012/09 -> 0001209)\n"
             "  importar ARQUIVO [--restaurar] [--substituir]\n"
             "        lê uma declaração para o banco, numa única transação: um arquivo com erro não deixa nada.\n"
             "        --restaurar faz como \"Restaurar Backup\" (as perguntas sobre a origem do arquivo são\n"
             "        respondidas Sim); --substituir responde Sim à substituição de uma VRT do mesmo CNPJ e\n"
             "        mês (ou nota fiscal); sem ela, a duplicada é recusada\n"
             "  listar\n"
             "        lista as declarações como a tela de escolha: identificação, internador, criação, tipo,\n"
             "        referência mensal, nota fiscal, série e situação, da identificação mais alta à mais baixa\n"
             "  tabela ARQUIVO\n"
             "        importa um arquivo de tabela de referência (moeda, NCM, produto, UF, unidade de medida\n"
             "        comercial), como os comandos de importação de tabelas do programa\n"
             "  verificar ARQUIVO\n"
             "        confere um arquivo de declaração sem tocar no banco e lista todos os problemas (linha,\n"
             "        posições, campo, o que está errado)\n"
             "\n"
             "Opções:\n"
             "  --banco ARQUIVO   usa outro banco de dados\n"
             "  --help            mostra este texto\n"
             "\n"
             "As mensagens do programa saem em stderr. Saída: 0 sucesso, 1 recusa ou falha, 2 erro de uso.\n");
}
