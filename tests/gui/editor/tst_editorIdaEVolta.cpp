// Declarations made in the editors travel through the file and come back as typed; declarations read from a
// file are opened and closed in the editor without a change to the database or to the file written from it.
#include "ArquivoTeste.h"
#include "CenariosGravacao.h"
#include "EditorTeste.h"

#include "core/file/writing/GravaVrt.h"
#include "core/file/reading/LeArquivoVrt.h"
#include "gui/widgets/MaskedField.h"

#include <QCheckBox>
#include <QRadioButton>
#include <QRegularExpression>
#include <QTemporaryDir>

using namespace EditorTeste;
using namespace modVRTPLN;

namespace {

QString t(const char* s)
{
    return QString::fromUtf8(s);
}

QString texto(Ambiente& a, const char* nome)
{
    return a.campo<QLineEdit>(t(nome))->text();
}

QByteArray escreve(const QString& id, const QString& pasta, ModoGravacao modo)
{
    MensagensRoteiro msgs;
    msgs.responde(Msg::OK);
    const ResultadoGravacao r = GravaVrt({id}, pasta, modo);
    return r.arquivos.isEmpty() ? QByteArray() : CenariosGravacao::conteudo(r.arquivos.first());
}

bool importa(const QByteArray& arquivo, const QString& pasta)
{
    ArquivoTeste::grava(pasta + t("/entrada"), arquivo);
    MensagensRoteiro msgs;
    msgs.responde(Msg::OK).responde(Msg::OK);
    const bool lido = LeArquivoVrtEm(pasta, t("entrada"), ModoLeitura::Importar);
    if (!lido || msgs.inesperadas)
        qWarning() << msgs.textos();
    return lido;
}

// The only declaration of the database, opened through the chooser's Ok.
void abrePeloEscolhedor(Ambiente& a)
{
    a.janela.acao(t("mnuDeclaracaoAbrir"))->trigger();
    QTest::mouseClick(a.janela.findChild<QPushButton*>(t("cmdOk")), Qt::LeftButton);
}

// The general data, values of both tabs, closed with Yes; gives the identification.
QString fazMensal(Ambiente& a)
{
    a.novaMensal();
    a.preencheMensal(t("5"), t("2009"));
    a.digita(t("txtDadosGerais(1)"), t("001"));
    a.digita(t("txtDadosGerais(2)"), t("1234"));
    a.digita(t("txtDadosGerais(3)"), t("998877X"));
    a.sai(t("txtDadosGerais(1)"));
    a.clica(t("ChkMand_Retif(0)"));
    a.incluiValor(0, t("VRT - PE"), t("Imposto de Importação"), t("1234,5"));
    a.incluiValor(0, t("VRT"), t("Multa por Atraso"), t("7"));
    a.clica(t("ChkMand_Retif(1)"));
    a.digita(t("mskDadosGerais(0)"), numeroVrt());
    a.incluiValor(1, t("VRT - PI com PPB"), t("COFINS"), t("10"));
    a.vaiParaAba(1);
    const QString id = a.editor()->idVrt();
    a.msgs.responde(Msg::Yes);
    a.fechar();
    return id;
}

void confereMensal(Ambiente& a)
{
    QCOMPARE(texto(a, "mskDadosGerais(1)"), t("11.222.333/0001-81"));
    QCOMPARE(texto(a, "txtDadosGeraisMensal(0)"), t("05"));
    QCOMPARE(texto(a, "txtDadosGeraisMensal(1)"), t("2009"));
    QCOMPARE(texto(a, "txtDadosGerais(1)"), t("001"));
    QCOMPARE(texto(a, "txtDadosGerais(2)"), t("1234"));
    // The file carries the account in its full width; the reader keeps the zeros in front.
    QCOMPARE(texto(a, "txtDadosGerais(3)"), t("000000000000998877X"));
    QCOMPARE(a.campo<MaskedField>(t("mskDadosGerais(0)"))->digits(), numeroVrt());
    QVERIFY(a.campo<QCheckBox>(t("ChkMand_Retif(0)"))->isChecked());
    QVERIFY(a.campo<QCheckBox>(t("ChkMand_Retif(1)"))->isChecked());
    auto* m = a.campo<ConsultGrid>(t("grdValoresTotaisAssociadosMandadoJudicial"));
    QCOMPARE(m->dataRowCount(), 2);
    // Codes and values as typed; the names are those the reader gives each slot of the file.
    QCOMPARE(m->rowTexts(0).mid(4, 3), (QStringList{t("1.234,50"), t("1"), t("3")}));
    QCOMPARE(m->rowTexts(1).mid(4, 3), (QStringList{t("7,00"), t("9"), t("2")}));
    auto* r = a.campo<ConsultGrid>(t("grdValoresRetificacao"));
    QCOMPARE(r->dataRowCount(), 1);
    QCOMPARE(r->rowTexts(0).mid(4, 3), (QStringList{t("10,00"), t("2"), t("11")}));
}

}  // namespace

class tst_editorIdaEVolta : public QObject {
    Q_OBJECT
private slots:
    void mensalFeitaNoEditorVoltaDoArquivoComoDigitada()
    {
        Ambiente a;
        QTemporaryDir pasta;
        const QString id = fazMensal(a);
        QCOMPARE(a.msgs.inesperadas, 0);
        const QByteArray arquivo = escreve(id, pasta.path(), ModoGravacao::Transmissao);
        QVERIFY(!arquivo.isEmpty());
        BancoTeste::executa(t("DELETE FROM VRT"));
        QVERIFY(importa(arquivo, pasta.path()));
        QCOMPARE(BancoTeste::conta(t("VRT")), 1);
        abrePeloEscolhedor(a);
        QVERIFY(a.editor());
        confereMensal(a);
        a.fechar();
        QCOMPARE(a.msgs.inesperadas, 0);
    }

    void individualFeitaNoEditorVoltaDoArquivoComoDigitada()
    {
        Ambiente a;
        QTemporaryDir pasta;
        a.novaIndividual();
        a.digita(t("mskDadosGerais(1)"), Cnpj);
        a.digita(t("mskDadosGerais(2)"), t("12345678"));
        a.digita(t("mskDadosGeraisIndividual(3)"), t("4567"));
        a.digita(t("txtDadosGeraisIndividual(1)"), t("u1"));
        a.digita(t("mskDadosGeraisIndividual(0)"), t("10052009"));
        a.digita(t("mskDadosGeraisIndividual(1)"), t("12052009"));
        a.digita(t("txtDadosGeraisIndividual(2)"), t("6102"));
        a.clica(t("optCPF_tabDadosGerais_Individual"));
        a.digita(t("mskDadosGeraisIndividual(2)"), t("52998224725"));
        a.escolhe(t("cboUF"), t("RR"));
        a.clica(t("ChkMand_Retif(2)"));
        a.digita(t("txtDadosGerais(1)"), t("237"));
        a.sai(t("txtDadosGerais(2)"));
        a.clica(t("ChkMand_Retif(0)"));
        a.incluiValor(0, t("VRT - PI sem PPB"), t("Multa de Mora IPI"), t("99,99"));
        a.vaiParaAba(4);
        const QString id = a.editor()->idVrt();
        a.msgs.responde(Msg::Yes);
        a.fechar();
        QCOMPARE(a.msgs.inesperadas, 0);
        const QByteArray arquivo = escreve(id, pasta.path(), ModoGravacao::Transmissao);
        QVERIFY(!arquivo.isEmpty());
        BancoTeste::executa(t("DELETE FROM VRT"));
        QVERIFY(importa(arquivo, pasta.path()));
        abrePeloEscolhedor(a);
        QVERIFY(a.editor());
        QCOMPARE(a.editor()->objectName(), t("frmVRTindividualNovo"));
        QCOMPARE(texto(a, "mskDadosGerais(1)"), t("11.222.333/0001-81"));
        // The reader fills the state registration with zeros to its width in the file.
        QCOMPARE(texto(a, "mskDadosGerais(2)"), t("00000012345678"));
        QCOMPARE(texto(a, "mskDadosGeraisIndividual(3)"), t("004.567"));
        QCOMPARE(texto(a, "txtDadosGeraisIndividual(1)").trimmed(), t("U1"));
        QCOMPARE(texto(a, "mskDadosGeraisIndividual(0)"), t("10/05/2009"));
        QCOMPARE(texto(a, "mskDadosGeraisIndividual(1)"), t("12/05/2009"));
        QCOMPARE(texto(a, "txtDadosGeraisIndividual(2)"), t("6102"));
        QVERIFY(a.campo<QRadioButton>(t("optCPF_tabDadosGerais_Individual"))->isChecked());
        QCOMPARE(a.campo<MaskedField>(t("mskDadosGeraisIndividual(2)"))->digits(), t("52998224725"));
        QCOMPARE(a.campo<QComboBox>(t("cboUF"))->currentText(), t("RR"));
        QVERIFY(a.campo<QCheckBox>(t("ChkMand_Retif(2)"))->isChecked());
        QCOMPARE(texto(a, "txtDadosGerais(1)"), t("237"));
        auto* m = a.campo<ConsultGrid>(t("grdValoresTotaisAssociadosMandadoJudicial"));
        QCOMPARE(m->dataRowCount(), 1);
        QCOMPARE(m->rowTexts(0).mid(4, 3), (QStringList{t("99,99"), t("3"), t("8")}));
        a.fechar();
        QCOMPARE(a.msgs.inesperadas, 0);
    }

    void lidaDeArquivoAbertaEFechadaSemMudarNada_data()
    {
        QTest::addColumn<QString>("arquivo");
        QTest::newRow("mensal") << t("mensal_completa.txt");
        QTest::newRow("individual") << t("individual_completa.txt");
    }
    void lidaDeArquivoAbertaEFechadaSemMudarNada()
    {
        QFETCH(QString, arquivo);
        Ambiente a;
        QTemporaryDir pasta;
        // Every field of eight digits of the golden file registered as an NCM, so that the reader finds its codes.
        QFile fonte(t(VRT_TEST_DATA "/gravacao/") + arquivo);
        QVERIFY(fonte.open(QIODevice::ReadOnly));
        const QString golden = QString::fromUtf8(fonte.readAll());
        QRegularExpression oito(t("(?<![0-9])[0-9]{8}(?![0-9])"));
        for (auto it = oito.globalMatch(QString(golden).replace(u'|', u' ')); it.hasNext();)
            BancoTeste::executa(t("INSERT OR IGNORE INTO NCM_ITEM (CD_NCM_PRODUTO, DESCR_NCM_PRODUTO, NM_UNID_MED_EST) "
                                  "VALUES (?, 'NCM', 'UN')"),
                                {it.next().captured()});
        QVERIFY(importa(CenariosGravacao::esperado(arquivo), pasta.path()));
        const QString id = BancoTeste::valor(t("SELECT ID_VRT_MICRO FROM VRT")).toString();
        const QByteArray antes = escreve(id, pasta.path(), ModoGravacao::Backup);
        const QStringList retrato = ArquivoTeste::retratoDoBanco();
        abrePeloEscolhedor(a);
        QVERIFY(a.editor());
        a.vaiParaAba(1);
        a.vaiParaAba(0);
        a.fechar();
        QVERIFY(!a.editor());
        QCOMPARE(a.msgs.caixas.size(), 0);
        QCOMPARE(ArquivoTeste::retratoDoBanco(), retrato);
        QCOMPARE(escreve(id, pasta.path(), ModoGravacao::Backup), antes);
    }
};

QTEST_MAIN(tst_editorIdaEVolta)
#include "tst_editorIdaEVolta.moc"
