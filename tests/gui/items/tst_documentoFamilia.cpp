// The rules every member of the foreign product's entry-document family shares (DI, DSI and acquisition invoice,
// monthly and individual), run once per member from the table of members through the real page "Documento de
// Origem". What differs between members is given per row; each kind's own rules have their own tests.
#include "DocumentoTeste.h"

#include "gui/assistants/DestinosEscolha.h"

#include <QHeaderView>

using namespace DocumentoTeste;
using namespace modVRTPLN;

namespace {

QString t(const char* s)
{
    return QString::fromUtf8(s);
}

// The currency picker's caller key of each value block, for the members that have the blocks.
void membrosComMoeda()
{
    linhasMembros<QStringList>(
        "chaves",
        {{t("DI mensal"), {t("produtoPEMensalDIProd"), t("produtoPEMensalDIFI"), t("produtoPEMensalDISI")}},
         {t("DI individual"), {t("produtoPEDIProd"), t("produtoPEDIFI"), t("produtoPEDISI")}},
         {t("DSI mensal"), {t("produtoPEMensalDSIProd"), t("produtoPEMensalDSIFI"), t("produtoPEMensalDSISI")}},
         {t("DSI individual"), {t("produtoPEDSIProd"), t("produtoPEDSIFI"), t("produtoPEDSISI")}}});
}

// The value blocks open: the Decreto-Lei for a DI, the suspension for a DSI.
void abreBlocos(Cenario& c)
{
    c.clica(c.tipo == TipoDocumento::DI ? Papel::DecretoLei : Papel::Suspensao);
}

}  // namespace

class tst_documentoFamilia : public QObject {
    Q_OBJECT
private slots:
    void paginaMostraOQuadroEscolhido_data() { linhasMembros(); }
    void paginaMostraOQuadroEscolhido()
    {
        Ambiente a;
        Cenario c(a, individualDaLinha(), tipoDaLinha());
        QVERIFY(c.quadro()->isVisible());
        QVERIFY(c.pagina()->botoes->isVisible());
        QVERIFY(c.pagina()->opcoes[int(c.tipo)]->isChecked());
        for (int outro = 0; outro < 3; ++outro)
            if (outro != int(c.tipo))
                QVERIFY(!c.pagina()->quadro(static_cast<TipoDocumento>(outro))->isVisible());
        QVERIFY(!c.pagina()->botoes->cmdAlterar->isEnabled());
        QCOMPARE(a.campo<QLabel>(c.quadro()->membro().nomeRotuloQuantidade)->text(), t("Quant. comercial em UN"));
        QCOMPARE(a.msgs.inesperadas, 0);
    }

    void gradeTemOsTitulosDoMembro_data()
    {
        linhasMembros<QStringList>(
            "titulos",
            {{t("DI mensal"), {t("Código do produto"), t("Local de destino"), t("Nº DI"), t("Nº DI Antiga"), t("Adição"),
                               t("Item"), t("Quantidade")}},
             {t("DI individual"),
              {t("Item"), t("Código do Produto"), t("Núm. DI"), t("Núm. DI Antiga"), t("Adição"), t("Item DI")}},
             {t("DSI mensal"), {t("Código do produto"), t("Local de destino"), t("Nº DSI"), t("Nº DSI Antiga"),
                                t("Nº do Bem"), t("Quantidade")}},
             {t("DSI individual"),
              {t("Item"), t("Código do Produto"), t("Núm. DSI"), t("Núm. DSI Antiga"), t("Número do Bem")}},
             {t("NFA mensal"),
              {t("Código do produto"), t("Local de destino"), t("NF"), t("Série"), t("Item"), t("Quantidade")}},
             {t("NFA individual"), {t("Item"), t("Código do Produto"), t("NF"), t("Série"), t("Item"), t("CNPJ")}}});
    }
    void gradeTemOsTitulosDoMembro()
    {
        QFETCH(QStringList, titulos);
        Ambiente a;
        Cenario c(a, individualDaLinha(), tipoDaLinha());
        ConsultGrid* g = c.quadro()->grade;
        QStringList vistos;
        for (int i = 0; i < g->columnCount(); ++i)
            if (!g->isColumnHidden(i) && g->horizontalHeader()->sectionSize(i) > 0 && !g->titleText(i).isEmpty())
                vistos << g->titleText(i);
        QCOMPARE(vistos, titulos);
        QCOMPARE(a.msgs.inesperadas, 0);
    }

    void linhaIncluidaVoltaAoEscolherEAlterada_data() { linhasMembros(); }
    void linhaIncluidaVoltaAoEscolherEAlterada()
    {
        Ambiente a;
        Cenario c(a, individualDaLinha(), tipoDaLinha());
        AlteracaoPendente = false;
        c.preencheValida();
        c.incluir();
        QCOMPARE(a.msgs.textos(), QStringList());
        QCOMPARE(BancoTeste::conta(c.tabela()), 1);
        QCOMPARE(c.quadro()->grade->dataRowCount(), 1);
        QVERIFY(AlteracaoPendente);
        // Incluir clears the fields; choosing the row brings them back and opens Alterar.
        QCOMPARE(c.texto(Papel::Quantidade), QString());
        c.escolheLinha(0);
        QVERIFY(c.pagina()->botoes->cmdAlterar->isEnabled());
        QVERIFY(c.texto(c.parteDaLinha()).endsWith(QLatin1Char('1')));
        QCOMPARE(c.texto(Papel::Quantidade), t("4,00000"));
        c.digita(Papel::Quantidade, t("7,5"));
        c.alterar();
        QCOMPARE(a.msgs.textos(), QStringList());
        const QString quantidade = c.quadro()->membro().colunas.value(Papel::Quantidade);
        QCOMPARE(valorDe(c.tabela(), quantidade), t("7,50000"));
        QCOMPARE(BancoTeste::conta(c.tabela()), 1);
        QVERIFY(!c.pagina()->botoes->cmdAlterar->isEnabled());
        QCOMPARE(a.msgs.inesperadas, 0);
    }

    void mesmaLinhaDuasVezesRecusada_data()
    {
        linhasMembros("mensagem",
                      {{t("DI mensal"), t("O conjunto DI/Adição/Item já encontra-se incluído.")},
                       {t("DI individual"), t("DI já incluída.")},
                       {t("DSI mensal"), t("O conjunto Número/Número do Bem da DSI eletrônica já foi incluído.")},
                       {t("DSI individual"), t("DSI já incluída.")},
                       {t("NFA mensal"), t("O conjunto Número/Série(Subsérie)/Item da NF de entrada já foi incluído.")},
                       {t("NFA individual"), t("NF de entrada já incluída.")}});
    }
    void mesmaLinhaDuasVezesRecusada()
    {
        QFETCH(QString, mensagem);
        Ambiente a;
        Cenario c(a, individualDaLinha(), tipoDaLinha());
        c.preencheValida();
        c.incluir();
        c.preencheValida();
        a.msgs.responde(Msg::OK);
        c.incluir();
        QCOMPARE(a.msgs.textos(), QStringList{mensagem});
        QCOMPARE(BancoTeste::conta(c.tabela()), 1);
        // Another line of the same document is another row.
        a.msgs.limpa();
        c.preencheValida(2);
        c.incluir();
        QCOMPARE(a.msgs.textos(), QStringList());
        QCOMPARE(BancoTeste::conta(c.tabela()), 2);
        QCOMPARE(c.quadro()->grade->dataRowCount(), 2);
        QCOMPARE(a.msgs.inesperadas, 0);
    }

    // The DI and the DSI of the individual editor change a line into a copy of another without a search; the
    // invoices of both editors and the monthly DI and DSI search.
    void alterarParaLinhaExistente_data()
    {
        linhasMembros("mensagem", {{t("DI mensal"), t("DI já incluída.")},
                                   {t("DI individual"), QString()},
                                   {t("DSI mensal"), t("DSI já incluída.")},
                                   {t("DSI individual"), QString()},
                                   {t("NFA mensal"), t("NF de entrada já incluída.")},
                                   {t("NFA individual"), t("NF de entrada já incluída.")}});
    }
    void alterarParaLinhaExistente()
    {
        QFETCH(QString, mensagem);
        Ambiente a;
        Cenario c(a, individualDaLinha(), tipoDaLinha());
        c.preencheValida(1);
        c.incluir();
        c.preencheValida(2);
        c.incluir();
        c.escolheLinha(1);
        c.digita(c.parteDaLinha(), t("1"));
        a.sai(c.nome(Papel::Quantidade));
        if (!mensagem.isEmpty())
            a.msgs.responde(Msg::OK);
        c.alterar();
        QCOMPARE(a.msgs.textos(), mensagem.isEmpty() ? QStringList() : QStringList{mensagem});
        const QString parte = c.quadro()->membro().colunas.value(c.parteDaLinha());
        const QString um = c.tipo == TipoDocumento::DI ? t("01") : t("001");
        QCOMPARE(BancoTeste::conta(c.tabela(), parte + t(" = ?"), {um}),
                 mensagem.isEmpty() ? 2 : 1);
        QCOMPARE(a.msgs.inesperadas, 0);
    }

    void excluirPerguntaAntes_data() { linhasMembros(); }
    void excluirPerguntaAntes()
    {
        Ambiente a;
        Cenario c(a, individualDaLinha(), tipoDaLinha());
        c.preencheValida(1);
        c.incluir();
        c.preencheValida(2);
        c.incluir();
        c.escolheLinha(0);
        a.msgs.responde(Msg::No);
        c.excluir();
        QCOMPARE(a.msgs.textos(), QStringList{t("Deseja realmente excluir?")});
        QCOMPARE(BancoTeste::conta(c.tabela()), 2);
        c.escolheLinha(0);
        a.msgs.responde(Msg::Yes);
        c.excluir();
        QCOMPARE(BancoTeste::conta(c.tabela()), 1);
        QCOMPARE(c.quadro()->grade->dataRowCount(), 1);
        // Another line is left: the page keeps its kind.
        QVERIFY(c.quadro()->isVisible());
        QCOMPARE(a.msgs.inesperadas, 0);
    }

    void ultimaLinhaExcluidaReiniciaAPaginaMensal_data() { tipos(); }
    void ultimaLinhaExcluidaReiniciaAPaginaMensal()
    {
        Ambiente a;
        Cenario c(a, false, tipoDaLinha());
        c.preencheValida();
        c.incluir();
        c.escolheLinha(0);
        a.msgs.responde(Msg::Yes);
        c.excluir();
        QCOMPARE(BancoTeste::conta(c.tabela()), 0);
        QVERIFY(!c.pagina()->opcoes[int(c.tipo)]->isChecked());
        QVERIFY(!c.quadro()->isVisible());
        QVERIFY(!c.pagina()->botoes->isVisible());
        QCOMPARE(a.msgs.inesperadas, 0);
    }

    void incluirNoIndividualPedeOItem_data() { tipos(); }
    void incluirNoIndividualPedeOItem()
    {
        QFETCH(int, tipo);
        Ambiente a;
        Cenario c(a, true);
        c.declaracaoComProduto();
        c.tipo = static_cast<TipoDocumento>(tipo);
        abaPE(a)->tabProdutoEstrangeiro->setCurrentIndex(1);
        a.clica(c.pagina()->opcoes[tipo]->objectName());
        c.preencheValida();
        a.msgs.responde(Msg::OK);
        c.incluir();
        QCOMPARE(a.msgs.textos(), QStringList{t("Não foi escolhido produto para documento de origem.")});
        QCOMPARE(BancoTeste::conta(c.tabela()), 0);
        QCOMPARE(a.msgs.inesperadas, 0);
    }

    void pickerDeMoedaEscreveNoCampoDaChave_data() { membrosComMoeda(); }
    void pickerDeMoedaEscreveNoCampoDaChave()
    {
        QFETCH(QStringList, chaves);
        Ambiente a;
        Cenario c(a, individualDaLinha(), tipoDaLinha());
        abreBlocos(c);
        const QStringList codigos{t("220"), t("978"), t("790")};
        for (int i = 0; i < 3; ++i)
            QVERIFY(DestinosEscolha::moeda().entrega(chaves.at(i), codigos.at(i)));
        QCOMPARE(c.texto(Papel::Moeda0), t("220"));
        QCOMPARE(c.texto(Papel::Moeda1), t("978"));
        QCOMPARE(c.texto(Papel::Moeda2), t("790"));
        QCOMPARE(a.msgs.inesperadas, 0);
    }

    void moedaDesconhecidaAvisada_data() { membrosComMoeda(); }
    void moedaDesconhecidaAvisada()
    {
        Ambiente a;
        Cenario c(a, individualDaLinha(), tipoDaLinha());
        c.clica(Papel::Suspensao);
        a.msgs.responde(Msg::OK);
        c.digita(Papel::Moeda1, t("999"));
        QCOMPARE(a.msgs.textos(), QStringList{t("Código de Moeda não encontrado!")});
        QCOMPARE(qobject_cast<QLineEdit*>(c.quadro()->campo(Papel::Moeda1))->selectedText(), t("999"));
        QCOMPARE(a.msgs.inesperadas, 0);
    }
};

QTEST_MAIN(tst_documentoFamilia)
#include "tst_documentoFamilia.moc"
