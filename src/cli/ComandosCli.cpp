#include "cli/ComandosCli.h"

#include "cli/ManipuladorCli.h"
#include "core/file/writing/GravaVrt.h"
#include "core/legacy/ImportaBancoAnterior.h"
#include "core/file/reading/LeArquivoVrt.h"
#include "core/lookups/ListaDeclaracoes.h"
#include "core/file/checking/VerificaArquivoVrt.h"
#include "core/session/MsgBox.h"
#include "core/session/modVRTPLN.h"
#include "core/store/Cadastros.h"
#include "core/store/modBancoDados.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <cstdio>

namespace {
QString s(const char* t)
{
    return QString::fromUtf8(t);
}
void erro(const QString& texto)
{
    std::fprintf(stderr, "vrt-cli: %s\n", texto.toUtf8().constData());
}
void saida(const QString& texto)
{
    std::fprintf(stdout, "%s\n", texto.toUtf8().constData());
}
}  // namespace

namespace ComandosCli {

QString ArquivoDoBanco(const OpcoesCli& opcoes)
{
    modVRTPLN::CaminhoAplicacao = QCoreApplication::applicationDirPath();
    QString arquivo;
    if (!opcoes.banco.isEmpty()) {
        const QFileInfo info(opcoes.banco);
        arquivo = info.absoluteFilePath();
        modVRTPLN::CaminhoDados = info.absolutePath();
    } else {
        modVRTPLN::LocalizaBanco();
        arquivo = modVRTPLN::ArquivoBanco();
    }
    if (!QFileInfo(arquivo).isFile()) {
        erro(s("banco de dados não encontrado: ") + arquivo);
        return QString();
    }
    return arquivo;
}

bool Escreve(const QString& comando)
{
    return comando == s("importar") || comando == s("tabela") || comando == s("banco-anterior") || comando == s("copiar");
}

bool AbreBanco(const QString& arquivo)
{
    return modBancoDados::ConectaBanco(arquivo);
}

int Gravar(const OpcoesCli& opcoes)
{
    const QFileInfo pasta(opcoes.pasta);
    if (!pasta.isDir()) {
        erro(s("pasta não encontrada: ") + opcoes.pasta);
        return 1;
    }
    // An identification that is not in the database refuses the whole run before anything is written, so
    // that no success text is printed for files that were never made.
    bool todasExistem = true;
    for (const QString& id : opcoes.argumentos) {
        if (!Cadastros::ExisteVrt(id)) {
            erro(s("identificação não encontrada: ") + id);
            todasExistem = false;
        }
    }
    if (!todasExistem)
        return 1;
    ManipuladorCli manipulador;
    InstalaManipuladorMsg(std::ref(manipulador));
    const ResultadoGravacao r = GravaVrt(opcoes.argumentos, pasta.absoluteFilePath(),
                                         opcoes.backup ? ModoGravacao::Backup : ModoGravacao::Transmissao);
    for (const QString& arquivo : r.arquivos)
        saida(arquivo);
    for (const QString& id : r.ignoradas)
        erro(s("identificação não encontrada: ") + id);
    return (r.erroGravacao || !r.ignoradas.isEmpty() || manipulador.criticas > 0) ? 1 : 0;
}

int BancoAnterior(const OpcoesCli& opcoes)
{
    const QFileInfo arquivo(opcoes.argumentos.at(0));
    ManipuladorCli manipulador(opcoes.substituir);
    InstalaManipuladorMsg(std::ref(manipulador));
    if (!BancoAnterior::NomeAceito(arquivo.fileName()))
        return 1;
    if (!BancoAnterior::ImportaBancoAnterior(arquivo.absolutePath(), arquivo.fileName()))
        return 1;
    MsgBox(s("Importação realizada com sucesso!"));
    return 0;
}

int Importar(const OpcoesCli& opcoes)
{
    const QFileInfo arquivo(opcoes.argumentos.at(0));
    ManipuladorCli manipulador(opcoes.substituir);
    InstalaManipuladorMsg(std::ref(manipulador));
    LeArquivoVrt leitura(arquivo.absolutePath(), arquivo.fileName(),
                         opcoes.restaurar ? ModoLeitura::Restaurar : ModoLeitura::Importar);
    return leitura.executa() ? 0 : 1;
}

int Listar(const OpcoesCli&)
{
    const QStringList titulos = ListaDeclaracoes::Titulos();
    const QList<QStringList> linhas = ListaDeclaracoes::Lista();
    QList<int> larguras;
    for (const QString& t : titulos)
        larguras << t.size();
    for (const QStringList& l : linhas) {
        for (int i = 0; i < l.size() && i < larguras.size(); ++i)
            larguras[i] = qMax(larguras[i], l.at(i).size());
    }
    const auto monta = [&larguras](const QStringList& campos) {
        QStringList partes;
        for (int i = 0; i < campos.size() && i < larguras.size(); ++i)
            partes << campos.at(i).leftJustified(larguras.at(i));
        return partes.join(s("  ")).trimmed();
    };
    saida(monta(titulos));
    for (const QStringList& l : linhas)
        saida(monta(l));
    return 0;
}

int Verificar(const OpcoesCli& opcoes)
{
    VerificaArquivoVrt verificacao;
    verificacao.verifica(opcoes.argumentos.at(0));
    for (const ProblemaArquivo& p : verificacao.problemas())
        saida(p.texto());
    const int n = verificacao.problemas().size();
    if (n == 0) {
        saida(s("Nenhum problema encontrado (") + QString::number(verificacao.linhas()) + s(" registros)."));
        return 0;
    }
    saida(QString::number(n) + (n == 1 ? s(" problema encontrado.") : s(" problemas encontrados.")));
    return 1;
}

}  // namespace ComandosCli
