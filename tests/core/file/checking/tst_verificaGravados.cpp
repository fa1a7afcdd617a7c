// Whatever the writer makes of data the program accepted, the file checker accepts: every declaration of the
// writer's scenarios, of the golden files and of the round trips is written and checked, and the checker finds
// nothing. The writer's own forms that the layouts alone would refuse (an indicator in a zero-filled slot, a
// Null CFOP as "000" and a blank) are the checker's accepted forms.
#include "ArquivoTeste.h"
#include "CenariosGravacao.h"
#include "TestUtil.h"
#include "core/file/writing/GravaVrt.h"
#include "core/file/reading/LeArquivoVrt.h"
#include "core/file/checking/VerificaArquivoVrt.h"
#include "core/session/modVRTPLN.h"

#include <QStringDecoder>
#include <QTemporaryDir>
#include <QtTest>
#include <functional>

namespace {

using Preparo = std::function<QString()>;

QString t(const char* s)
{
    return QString::fromUtf8(s);
}

// Registers the NCM codes of a file's items, read at their places in the record layouts, as the reader requires.
void cadastraNcmsDoArquivo(const QByteArray& arquivo)
{
    QStringDecoder cp1252("windows-1252");
    const QString texto = cp1252.decode(arquivo);
    const QStringList linhas = texto.split(t("\r\n"));
    const TipoDeclaracao tipo = linhas.value(0).mid(15, 1) == t("1") ? TipoDeclaracao::Individual
                                                                     : TipoDeclaracao::Mensal;
    for (const QString& linha : linhas.mid(4)) {
        const LayoutRegistro* layout = LayoutRegistro::procura(tipo, linha.left(2));
        if (!layout)
            continue;
        for (const CampoLayout& c : layout->campos)
            if (c.nome.startsWith(t("CD_NCM_")) && c.fim() <= linha.size())
                BancoTeste::executa(t("INSERT OR IGNORE INTO NCM_ITEM (CD_NCM_PRODUTO, DESCR_NCM_PRODUTO, "
                                      "NM_UNID_MED_EST) VALUES (?, 'NCM', 'UN')"),
                                    {c.de(linha)});
    }
}

// Reads a file into the database as a restore does, and gives the identification it got. A file written for
// transmission is restored all the same: the question gets Yes.
QString importa(const QByteArray& arquivo, const QString& pasta)
{
    ArquivoTeste::grava(pasta + t("/entrada"), arquivo);
    cadastraNcmsDoArquivo(arquivo);
    MensagensRoteiro msgs;
    if (arquivo.mid(9, 1) == "1")
        msgs.responde(Msg::Yes);
    msgs.responde(Msg::OK);
    if (!LeArquivoVrtEm(pasta, t("entrada"), ModoLeitura::Restaurar) || msgs.inesperadas != 0) {
        qWarning("leitura recusada: %s", qPrintable(msgs.textos().join(QLatin1Char('|'))));
        return QString();
    }
    return ArquivoTeste::identificacao(1);
}

QString problemasDe(const QString& caminho)
{
    VerificaArquivoVrt verificacao;
    if (!verificacao.verifica(caminho))
        return t("ilegível");
    QStringList textos;
    for (const ProblemaArquivo& p : verificacao.problemas())
        textos << p.texto();
    return textos.join(QLatin1Char('\n'));
}

}  // namespace

Q_DECLARE_METATYPE(Preparo)

class tst_verificaGravados : public QObject {
    Q_OBJECT
private slots:
    void arquivoGravadoPassaNaVerificacao_data()
    {
        QTest::addColumn<Preparo>("preparo");
        QTest::newRow("cenário mensal completo") << Preparo([] {
            CenariosGravacao::insereMensalCompleta(t("00012/09"));
            return t("00012/09");
        });
        QTest::newRow("cenário individual completo") << Preparo([] {
            CenariosGravacao::insereIndividualCompleta(t("00013/09"));
            return t("00013/09");
        });
        for (const char* dourado : {"mensal_completa.txt", "individual_completa.txt"}) {
            QTest::newRow(qPrintable(t("importado de ") + t(dourado))) << Preparo([dourado] {
                return importa(CenariosGravacao::esperado(t(dourado)), modVRTPLN::CaminhoDados);
            });
        }
        for (const auto& [nome, linhas] : ArquivoTeste::declaracoesIdaEVolta()) {
            const QStringList l = linhas;
            QTest::newRow(qPrintable(t("ida e volta: ") + nome)) << Preparo([l] {
                return importa(ArquivoTeste::bytes(l), modVRTPLN::CaminhoDados);
            });
        }
        QTest::newRow("ida e volta: assimetrias") << Preparo([] {
            ArquivoTeste::insereMensalDasAssimetrias(t("00007/09"));
            return t("00007/09");
        });
    }
    void arquivoGravadoPassaNaVerificacao()
    {
        QFETCH(Preparo, preparo);
        BancoTeste banco;
        ArquivoTeste::cadastraNcmsDosRegistros();
        const QString id = preparo();
        QVERIFY(!id.isEmpty());
        for (ModoGravacao modo : {ModoGravacao::Transmissao, ModoGravacao::Backup}) {
            QTemporaryDir pasta;
            MensagensRoteiro msgs;
            msgs.responde(Msg::OK);
            const ResultadoGravacao r = GravaVrt({id}, pasta.path(), modo);
            QCOMPARE(r.arquivos.size(), 1);
            QCOMPARE(problemasDe(r.arquivos.first()), QString());
        }
    }

    // The golden files are the writer's forms written by hand: the checker accepts them as they are.
    void arquivosDeReferenciaPassamNaVerificacao_data()
    {
        QTest::addColumn<QString>("nome");
        QTest::newRow("mensal") << t("mensal_completa.txt");
        QTest::newRow("individual") << t("individual_completa.txt");
    }
    void arquivosDeReferenciaPassamNaVerificacao()
    {
        QFETCH(QString, nome);
        QTemporaryDir pasta;
        const QString caminho = pasta.path() + t("/arquivo");
        ArquivoTeste::grava(caminho, CenariosGravacao::esperado(nome));
        QCOMPARE(problemasDe(caminho), QString());
    }

    // The individual record 12 puts the obsolescence indicator in a zero-filled slot: "S", "N" and the "0" of a
    // Null are the writer's forms; any other letter is still a problem.
    void indicadorDeObsolescenciaDoRegistro12Individual()
    {
        BancoTeste banco;
        CenariosGravacao::insereIndividualCompleta(t("00013/09"));
        QTemporaryDir pasta;
        MensagensRoteiro msgs;
        msgs.responde(Msg::OK);
        const ResultadoGravacao r = GravaVrt({t("00013/09")}, pasta.path(), ModoGravacao::Backup);
        QFile f(r.arquivos.value(0));
        QVERIFY(f.open(QIODevice::ReadOnly));
        QByteArray bytes = f.readAll();
        f.close();
        const qsizetype inicio = bytes.indexOf("\r\n12");
        QVERIFY(inicio >= 0);
        const qsizetype posicao = inicio + 2 + 43;
        QVERIFY(bytes.at(posicao) == 'S' || bytes.at(posicao) == 'N' || bytes.at(posicao) == '0');
        bytes[posicao] = 'X';
        ArquivoTeste::grava(r.arquivos.value(0), bytes);
        QVERIFY(problemasDe(r.arquivos.value(0)).contains(t("(IND_OBSOLE_RESIDUO): campo numérico com \"X\"")));
    }
};

QTEST_MAIN(tst_verificaGravados)
#include "tst_verificaGravados.moc"
