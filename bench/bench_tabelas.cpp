// Times the reference table import and the declaration list on a copy of the delivered database:
//   - a NCM file of 15,000 lines into an empty NCM_ITEM, and again over itself (every line an update);
//   - a product file of 50,000 lines into an empty PRODUTO, and again over itself;
//   - the chooser's list query over 5,000 declarations.
// Beside each load into an empty table, the floor: the sqlite3 shell's `.import` of the same rows (taken from the
// table the import filled, as CSV) into the same table of another copy of the database, emptied alike. Skipped,
// with a line that says so, when the shell is not installed.
// Both sides of each comparison run three times, each on an empty table with the disk caught up, and the best
// run is printed, as the machine is shared. Prints the figures; never fails on time.
#include "core/lookups/ListaDeclaracoes.h"
#include "core/refdata/modImportacao.h"
#include "core/session/MsgBox.h"
#include "core/session/modVRTPLN.h"
#include "core/store/modBancoDados.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QProcess>
#include <QStandardPaths>
#include <QStringEncoder>
#include <QTemporaryDir>
#include <cstdio>
#include <functional>
#include <unistd.h>

namespace {

QString fixo(const QString& valor, int tamanho)
{
    return valor.left(tamanho).leftJustified(tamanho, QLatin1Char(' '));
}

void grava(const QString& caminho, const QStringList& linhas)
{
    QFile f(caminho);
    if (!f.open(QIODevice::WriteOnly | QIODevice::Truncate))
        qFatal("não foi possível gravar %s", qPrintable(caminho));
    QStringEncoder cp1252("windows-1252");
    QByteArray bytes;
    for (const QString& l : linhas)
        bytes += QByteArray(cp1252.encode(l)) + "\r\n";
    f.write(bytes);
}

// The best of three runs of `vez`, each after `prepara` (not timed) and with the disk caught up.
qint64 melhorDeTres(const std::function<void()>& prepara, const std::function<qint64()>& vez)
{
    qint64 melhor = -1;
    for (int i = 0; i < 3; ++i) {
        prepara();
        ::sync();
        const qint64 ms = vez();
        if (ms < 0)
            return -1;
        melhor = melhor < 0 ? ms : qMin(melhor, ms);
    }
    return melhor;
}

qint64 importa(const QString& pasta, const QString& nome)
{
    QElapsedTimer relogio;
    relogio.start();
    if (modImportacao::ImportaTabela(pasta, nome) != modImportacao::Resultado::Sucesso)
        qFatal("a importação de %s falhou", qPrintable(nome));
    return relogio.elapsed();
}

void mostra(const char* o_que, int linhas, qint64 ms, const QString& nota = QString())
{
    std::printf("%-48s %6d linhas  %6lld ms  %9.0f linhas/s  %s\n", o_que, linhas, ms,
                ms > 0 ? linhas * 1000.0 / ms : 0.0, qPrintable(nota));
}

bool temShell()
{
    return !QStandardPaths::findExecutable(QStringLiteral("sqlite3")).isEmpty();
}

bool shell(const QStringList& argumentos)
{
    QProcess p;
    p.start(QStringLiteral("sqlite3"), argumentos);
    if (!p.waitForFinished(600000) || p.exitCode() != 0 || !p.readAllStandardError().isEmpty()) {
        std::fprintf(stderr, "sqlite3 falhou: %s\n", qPrintable(argumentos.join(QLatin1Char(' '))));
        return false;
    }
    return true;
}

// The floor of a load into an empty table: the rows of `tabela` in `banco` written out as CSV, then imported by the
// shell into the same empty table of `vazio` (the delivered database with that table emptied); its milliseconds,
// process start included, or -1.
qint64 importacaoDoShell(const QString& banco, const QString& vazio, const QString& tabela, const QString& pasta)
{
    const QString csv = pasta + QLatin1Char('/') + tabela + QStringLiteral(".csv");
    const QString copia = pasta + QLatin1Char('/') + tabela + QStringLiteral("-shell.mdb");
    if (!shell({banco, QStringLiteral(".mode csv"), QStringLiteral(".output ") + csv,
                QStringLiteral("SELECT * FROM ") + tabela + QLatin1Char(';')}))
        return -1;
    return melhorDeTres(
        [&] {
            QFile::remove(copia);
            QFile::copy(vazio, copia);
        },
        [&]() -> qint64 {
            QElapsedTimer relogio;
            relogio.start();
            if (!shell({copia, QStringLiteral(".mode csv"),
                        QStringLiteral(".import ") + csv + QLatin1Char(' ') + tabela}))
                return -1;
            return relogio.elapsed();
        });
}

// The session on `banco` made again from `vazio`, as the imports and the shell's loads both find it.
void conectaNaVazia(const QString& banco, const QString& vazio)
{
    modBancoDados::DesconectaBanco();
    QFile::remove(banco);
    if (!QFile::copy(vazio, banco))
        qFatal("cópia do banco vazio falhou");
    QFile(banco).setPermissions(QFile::ReadOwner | QFile::WriteOwner);
    modBancoDados::ConectaBanco(banco);
    modVRTPLN::ArquivoImportaTabela = QStringLiteral("SIM");
}

// The import of `arquivo` into the emptied database, best of three.
qint64 importaNaVazia(const QString& pasta, const QString& arquivo, const QString& banco, const QString& vazio)
{
    return melhorDeTres([&] { conectaNaVazia(banco, vazio); }, [&] { return importa(pasta, arquivo); });
}

void confere(const QString& tabela, int linhas)
{
    if (modBancoDados::ValorUnico(QStringLiteral("SELECT COUNT(*) FROM ") + tabela).toInt() != linhas)
        qFatal("contagem errada em %s depois da importação", qPrintable(tabela));
}

QString razao(qint64 ms, qint64 piso)
{
    if (piso < 0)
        return QStringLiteral("[sqlite3 ausente: sem comparação]");
    return QStringLiteral("shell .import %1 ms: %2x").arg(piso).arg(piso > 0 ? double(ms) / piso : 0.0, 0, 'f', 2);
}

}  // namespace

int main(int argc, char** argv)
{
    QCoreApplication app(argc, argv);
    // The final message of each import is counted, not printed.
    int caixas = 0;
    InstalaManipuladorMsg([&caixas](const QString&, int, const QString&) {
        ++caixas;
        return Msg::OK;
    });
    QTemporaryDir pasta;
    const QString banco = pasta.filePath(modVRTPLN::NomeArquivoBanco);
    if (!QFile::copy(QStringLiteral(VRT_DELIVERED_DB), banco))
        qFatal("banco entregue ausente: %s", VRT_DELIVERED_DB);
    QFile(banco).setPermissions(QFile::ReadOwner | QFile::WriteOwner);
    modVRTPLN::CaminhoAplicacao = pasta.path();
    modVRTPLN::CaminhoDados = pasta.path();
    modBancoDados::ConectaBanco(banco);
    modBancoDados::ExecutaSql(QStringLiteral("DELETE FROM NCM_ITEM"));
    modBancoDados::ExecutaSql(QStringLiteral("DELETE FROM PRODUTO"));
    // The database as the imports find it, for the imports and the shell's loads alike.
    modBancoDados::DesconectaBanco();
    const QString vazio = pasta.filePath(QStringLiteral("vazio.mdb"));
    QFile::copy(banco, vazio);
    const bool comShell = temShell();
    if (!comShell)
        std::printf("sqlite3 não instalado: as cargas do shell ficam de fora\n");
    const auto piso = [&](const char* tabela) {
        return comShell ? importacaoDoShell(banco, vazio, QString::fromLatin1(tabela), pasta.path()) : -1;
    };

    const int nNcm = 15000;
    QStringList ncm{QStringLiteral("00VRT/PLN0 NCM")};
    for (int i = 0; i < nNcm; ++i)
        ncm << QStringLiteral("02") + QStringLiteral("%1").arg(10000000 + i * 613, 8, 10, QLatin1Char('0'))
                   + fixo(QStringLiteral("Outros tecidos de malha, de fibras sintéticas, crus ou branqueados nº %1").arg(i),
                          80)
                   + fixo(QStringLiteral("QUILOGRAMA LIQUIDO"), 50);
    grava(pasta.filePath(QStringLiteral("ncm.txt")), ncm);

    const int nProdutos = 50000;
    QStringList produtos{QStringLiteral("00VRT/PLN0 PRODUTOS")};
    for (int i = 0; i < nProdutos; ++i)
        produtos << QStringLiteral("03") + fixo(QStringLiteral("PRD-%1").arg(i, 8, 10, QLatin1Char('0')), 15)
                        + fixo(QStringLiteral("Caneca de porcelana D'Ávila modelo %1").arg(i), 80);
    grava(pasta.filePath(QStringLiteral("produtos.txt")), produtos);

    std::printf("Importação de tabelas (uma transação por arquivo)\n");
    const qint64 ncmVazia = importaNaVazia(pasta.path(), QStringLiteral("ncm.txt"), banco, vazio);
    mostra("NCM, tabela vazia", nNcm, ncmVazia, razao(ncmVazia, piso("NCM_ITEM")));
    mostra("NCM, de novo (toda linha altera)", nNcm, importa(pasta.path(), QStringLiteral("ncm.txt")));
    confere(QStringLiteral("NCM_ITEM"), nNcm);
    const qint64 produtosVazia = importaNaVazia(pasta.path(), QStringLiteral("produtos.txt"), banco, vazio);
    mostra("produtos, tabela vazia", nProdutos, produtosVazia, razao(produtosVazia, piso("PRODUTO")));
    mostra("produtos, de novo (toda linha altera)", nProdutos, importa(pasta.path(), QStringLiteral("produtos.txt")));
    confere(QStringLiteral("PRODUTO"), nProdutos);

    const int nVrt = 5000;
    {
        modBancoDados::Transacao t;
        for (int i = 1; i <= nVrt; ++i) {
            const QString id = QStringLiteral("%1/09").arg(i, 5, 10, QLatin1Char('0'));
            const bool mensal = i % 2;
            modBancoDados::ExecutaSql(QStringLiteral("INSERT INTO VRT (ID_VRT_MICRO, CD_TIPO_VRT, NR_CNPJ_INTERNADOR, "
                                                     "DT_REGISTRO_VRT_MICRO, IND_RETIFICACAO) VALUES (?, ?, ?, ?, 'N')"),
                                      {id, mensal ? QStringLiteral("2") : QStringLiteral("1"),
                                       QStringLiteral("%1").arg(11222333000100LL + i, 14, 10, QLatin1Char('0')),
                                       QStringLiteral("2009-%1-15").arg(1 + i % 12, 2, 10, QLatin1Char('0'))});
            if (mensal)
                modBancoDados::ExecutaSql(QStringLiteral("INSERT INTO VRT_MENSAL VALUES (?, '032009')"), {id});
            else
                modBancoDados::ExecutaSql(QStringLiteral("INSERT INTO NOTA_FISCAL_SAIDA (ID_VRT_MICRO, NR_NF_SAIDA, "
                                                         "NR_SERIE_NF_SAIDA) VALUES (?, '000123', '1    ')"),
                                          {id});
        }
        t.confirma();
    }
    std::printf("\nLista de declarações da tela de escolha\n");
    for (int coluna = 0; coluna < 4; ++coluna) {
        QElapsedTimer relogio;
        relogio.start();
        const int n = ListaDeclaracoes::Lista(coluna, QStringLiteral("DESC")).size();
        mostra(qPrintable(QStringLiteral("ordenada por %1").arg(ListaDeclaracoes::ColunaOrdenacao(coluna))), n,
               relogio.elapsed());
    }
    std::printf("\n%d mensagens finais\n", caixas);
    modBancoDados::DesconectaBanco();
    return 0;
}
