// Times the import of an old-version database of 1,000 declarations, each with a row in every table the import
// reads (about 48,000 rows). The old file is written by the tests' Access writer; the present database is the
// delivered one, with its reference rows, so every question is asked and answered Yes. Prints seconds and rows
// per second; never fails on time.
#include "BancoVersao1.h"

#include "core/legacy/ImportaBancoAnterior.h"
#include "core/session/MsgBox.h"
#include "core/session/modVRTPLN.h"
#include "core/store/modBancoDados.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QTemporaryDir>
#include <cstdio>

namespace {

const int Declaracoes = 1000;

// A value for every column of a row of declaration `n`: the keys all `n`, so that every reference holds, and the
// codes of the reference rows distinct.
QVariant valor(const QString& coluna, ColunaJet::Tipo tipo, int largura, int n)
{
    if (coluna == QLatin1String("ID_VRT_MICRO"))
        return QStringLiteral("%1/08").arg(n, 5, 10, QLatin1Char('0'));
    if (tipo == ColunaJet::Longo)
        return n;
    if (tipo == ColunaJet::DataHora)
        return QStringLiteral("2008-12-%1").arg(n % 18 + 10);
    // In base 36 the number fits two characters, so that codes as narrow as a state's stay distinct.
    const QString texto = QString::number(n, 36).toUpper().rightJustified(2, QLatin1Char('0')) + coluna;
    return largura > 0 ? texto.left(largura) : texto;
}

QList<TabelaJet> antigo()
{
    QList<TabelaJet> banco = BancoVersao1::Vazio();
    for (TabelaJet& t : banco) {
        const QHash<QString, int> larguras = BancoVersao1::Larguras(t.nome);
        for (int n = 1; n <= Declaracoes; ++n) {
            QVariantList linha;
            for (const ColunaJet& c : t.colunas)
                linha << valor(c.nome, c.tipo, larguras.value(c.nome), n);
            t.linhas << linha;
        }
    }
    return banco;
}

}  // namespace

int main(int argc, char** argv)
{
    QCoreApplication app(argc, argv);
    // Every question is answered Yes; any other box is printed, as it tells why the import stopped.
    InstalaManipuladorMsg([](const QString& texto, int estilo, const QString& titulo) {
        if ((estilo & Msg::MascaraBotoes) == Msg::YesNo)
            return Msg::Yes;
        return ManipuladorConsole(texto, estilo, titulo);
    });
    QTemporaryDir dir;
    const QString arquivo = dir.filePath(modVRTPLN::NomeArquivoBanco);
    QFile::copy(QStringLiteral(VRT_DELIVERED_DB), arquivo);
    QFile::setPermissions(arquivo, QFile::ReadOwner | QFile::WriteOwner);
    modVRTPLN::CaminhoAplicacao = dir.path();
    modVRTPLN::CaminhoDados = dir.path();
    modBancoDados::ConectaBanco(arquivo);

    QElapsedTimer r;
    r.start();
    const QList<TabelaJet> banco = antigo();
    qint64 linhas = 0;
    for (const TabelaJet& t : banco)
        linhas += t.linhas.size();
    const QString velho = dir.filePath(QStringLiteral("PLN_VRT.mdb"));
    if (!EscreveJet4(velho, banco)) {
        std::fprintf(stderr, "o arquivo antigo não pôde ser escrito\n");
        return 1;
    }
    std::printf("arquivo antigo de %d declarações (%lld linhas) escrito em %.2f s\n", Declaracoes,
                static_cast<long long>(linhas), r.nsecsElapsed() / 1e9);
    std::fflush(stdout);

    r.restart();
    const bool ok = BancoAnterior::ImportaBancoAnterior(dir.path(), QStringLiteral("PLN_VRT.mdb"));
    const double s = r.nsecsElapsed() / 1e9;
    const int vrt = modBancoDados::ValorUnico(QStringLiteral("SELECT count(*) FROM VRT")).toInt();
    std::printf("importação %s: %7.3f s  %d declarações  %9.0f linhas/s\n", ok ? "concluída" : "FALHOU", s, vrt,
                linhas / s);
    return ok ? 0 : 1;
}
