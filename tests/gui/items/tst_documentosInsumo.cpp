// The entry documents of an input of PI sem PPB, DI, DSI and acquisition invoice in both editors, typed on the page
// "Documentos de Origem": a line included under the input (and its place), refused again, changed and deleted;
// the checks that are the input members' own; the input's name kept in the monthly DI line.
#include "DocumentoTeste.h"
#include "ItensTeste.h"
#include "PISemPPBTeste.h"

#include "gui/items/AbaPIsemPPB.h"
#include "gui/items/PaginaDocumentosInsumo.h"


using namespace ItensTeste;

namespace {

QString t(const char* s)
{
    return QString::fromUtf8(s);
}

struct Insumo {
    Ambiente& a;
    bool individual;
    TipoDocumento tipo = TipoDocumento::DI;

    PaginaDocumentosInsumo* pagina() const
    {
        return qobject_cast<AbaPIsemPPB*>(a.editor()->abaItens(3))->documentos;
    }
    QuadroDocumento* quadro() const { return pagina()->quadro(tipo); }
    const MembroDocumento& membro() const { return quadro()->membro(); }
    QString nome(Papel p) const { return membro().nomes.value(p); }
    void digita(Papel p, const QString& texto) { a.digita(nome(p), texto); }

    // A declaration with product P001 and its input INS1, left on the page of documents with the input (and its
    // first place, or the item) chosen.
    void prepara()
    {
        naAba(a, individual, 3);
        PISemPPBTeste::cadastraInsumo(t("INS1"));
        PISemPPBTeste::produtoComInsumo(a, individual);
        PISemPPBTeste::escolheInsumoDosDocumentos(a, individual);
    }

    void escolheTipo(TipoDocumento escolhido)
    {
        tipo = escolhido;
        a.clica(pagina()->opcoes[static_cast<int>(tipo)]->objectName());
    }

    // A complete line of the kind in force; `n` and `quantidade` make other lines.
    void preenche(int n = 1, const QString& quantidade = t("4"))
    {
        const QString v = QString::number(n);
        if (tipo == TipoDocumento::DI) {
            digita(Papel::Numero, DocumentoTeste::numeroDI());
            digita(Papel::Adicao, t("1"));
            digita(Papel::ItemAdicao, v);
        } else if (tipo == TipoDocumento::DSI) {
            digita(Papel::Numero, DocumentoTeste::numeroDSI());
            digita(Papel::NumeroBem, v);
        } else {
            digita(Papel::NumeroNF, t("1234"));
            digita(Papel::Serie, t("A1"));
            digita(Papel::ItemNF, v);
            digita(Papel::Data, t("15012008"));
            digita(Papel::CFOP, t("5102"));
            digita(Papel::CNPJ, DocumentoTeste::CnpjFornecedor);
        }
        digita(Papel::Quantidade, quantidade);
        a.sai(pagina()->botoes->cmdIncluir->objectName());
    }

    void incluir() { a.clica(t("cmdIncluir_tabPIsemPPB")); }
    void alterar() { a.clica(t("cmdAlterar_tabPIsemPPB")); }
    void excluir() { a.clica(t("cmdExcluir_tabPIsemPPB")); }
    void escolheLinha(int linha)
    {
        ConsultGrid* g = quadro()->grade;
        g->setCurrentCell(linha, 1);
        emit g->rowChosen(linha);
    }
    int linhas(const QString& onde = QString(), const QVariantList& v = {}) const
    {
        return conta(membro().dados.tabela, onde, v);
    }
};

void linhasMembros()
{
    QTest::addColumn<int>("tipo");
    QTest::addColumn<bool>("individual");
    for (const MembroDocumento& m : MembrosDocumento())
        if (m.origem == Origem::Insumo)
            QTest::addRow("%s %s", DocumentoTeste::nomeTipo(m.tipo), m.individual ? "individual" : "mensal")
                << int(m.tipo) << m.individual;
}

}  // namespace

class tst_documentosInsumo : public QObject {
    Q_OBJECT
private slots:
    void linhaIncluidaRecusadaDeNovoAlteradaEExcluida_data() { linhasMembros(); }
    void linhaIncluidaRecusadaDeNovoAlteradaEExcluida()
    {
        QFETCH(int, tipo);
        QFETCH(bool, individual);
        Ambiente a;
        Insumo i{a, individual};
        i.prepara();
        i.escolheTipo(static_cast<TipoDocumento>(tipo));
        QVERIFY(i.quadro()->isVisible());
        i.preenche();
        i.incluir();
        QCOMPARE(a.msgs.textos(), QStringList());
        const QString quantidade = i.membro().colunas.value(Papel::Quantidade);
        const QString pai = individual ? t("ID_INSUMO = (SELECT ID_INSUMO FROM INSUMO_ITEM_NFS WHERE CD_INT_INSUMO = 'INS1')")
                                       : t("CD_INT_INSUMO = 'INS1' AND CD_LOCAL_DESTINO = '1' AND ID_VRT_MICRO = ?");
        const QVariantList v = individual ? QVariantList{} : QVariantList{a.editor()->idVrt()};
        QCOMPARE(i.linhas(pai + t(" AND ") + quantidade + t(" = '4,00000'"), v), 1);
        QCOMPARE(i.quadro()->grade->dataRowCount(), 1);
        QCOMPARE(i.quadro()->grade->rowTexts(0).at(1).trimmed(), t("INS1"));

        i.preenche();
        a.msgs.responde(Msg::OK);
        i.incluir();
        QCOMPARE(a.msgs.textos(), QStringList{i.membro().msgDuplicadoEletronica});
        QCOMPARE(i.linhas(), 1);
        a.msgs.limpa();

        i.quadro()->limpa();
        i.escolheLinha(0);
        i.digita(Papel::Quantidade, t("6"));
        a.sai(t("cmdAlterar_tabPIsemPPB"));
        i.alterar();
        QCOMPARE(a.msgs.textos(), QStringList());
        QCOMPARE(i.linhas(quantidade + t(" = '6,00000'")), 1);

        i.escolheLinha(0);
        a.msgs.responde(Msg::Yes);
        i.excluir();
        QCOMPARE(a.msgs.textos(), QStringList{t("Deseja realmente excluir?")});
        QCOMPARE(i.linhas(), 0);
        // A place left without documents shows the page as when it was entered; an item's page keeps its kind.
        QCOMPARE(i.quadro()->isVisible(), individual);
        QCOMPARE(a.msgs.inesperadas, 0);
    }

    void dsiDoInsumoValidaNaOrdemDoMembro_data()
    {
        QTest::addColumn<bool>("individual");
        QTest::addColumn<QStringList>("mensagens");
        QTest::newRow("mensal") << false
                                << QStringList{t("O campo número da DSI deve ser preenchido."), t("DSI incorreta."),
                                               t("O campo número do bem não pode ser nulo."),
                                               t("O campo quantidade comercial não pode ser nulo.")};
        // The individual input has no test of the number's length here.
        QTest::newRow("individual") << true
                                    << QStringList{t("O campo número da DSI deve ser preenchido."),
                                                   t("O campo número do bem deve ser preenchido."),
                                                   t("O campo quantidade deve ser preenchido.")};
    }
    void dsiDoInsumoValidaNaOrdemDoMembro()
    {
        QFETCH(bool, individual);
        QFETCH(QStringList, mensagens);
        Ambiente a;
        Insumo i{a, individual};
        i.prepara();
        i.escolheTipo(TipoDocumento::DSI);
        const auto tenta = [&] {
            a.msgs.responde(Msg::OK);
            i.incluir();
        };
        auto* numero = qobject_cast<MaskedField*>(i.quadro()->campo(Papel::Numero));
        tenta();
        // Seven digits that pass the check digit: only the monthly input refuses a short number.
        numero->setDigits(t("0912345"));
        if (!individual)
            tenta();
        numero->setDigits(DocumentoTeste::numeroDSI());
        tenta();
        i.digita(Papel::NumeroBem, t("7"));
        a.sai(t("cmdIncluir_tabPIsemPPB"));
        tenta();
        QCOMPARE(a.msgs.textos(), mensagens);
        QCOMPARE(i.linhas(), 0);
    }

    void dsiDoInsumoComSuspensaoGuardaOsValoresNaLinha_data()
    {
        QTest::addColumn<bool>("individual");
        QTest::newRow("mensal") << false;
        QTest::newRow("individual") << true;
    }
    void dsiDoInsumoComSuspensaoGuardaOsValoresNaLinha()
    {
        QFETCH(bool, individual);
        Ambiente a;
        Insumo i{a, individual};
        i.prepara();
        i.escolheTipo(TipoDocumento::DSI);
        QVERIFY(!i.quadro()->campo(Papel::Valor0)->isEnabled());
        i.preenche();
        a.clica(i.nome(Papel::Suspensao));
        QVERIFY(i.quadro()->campo(Papel::Valor0)->isEnabled());
        i.digita(Papel::Moeda0, t("220"));
        i.digita(Papel::Valor0, t("10"));
        a.sai(i.nome(Papel::Moeda0));
        i.incluir();
        QCOMPARE(a.msgs.textos(), QStringList());
        const QString valor = individual ? t("VL_INS_UNID_PROD") : t("VL_PROD_UNID_PROD");
        QCOMPARE(i.linhas(t("IND_SUSP_PIS_COFINS = 'S' AND CD_MOEDA_NEG = '220' AND CD_MOEDA_FRETE = '' AND ") + valor
                          + t(" = '10,0000000'")),
                 1);
    }

    void nfaDoInsumoMensalValidaNaOrdemDoMembro()
    {
        Ambiente a;
        Insumo i{a, false};
        i.prepara();
        i.escolheTipo(TipoDocumento::NFA);
        QVERIFY(!i.quadro()->campo(Papel::ValorUnitario)->isEnabled());
        QCOMPARE(i.quadro()->findChild<QLabel*>(t("lblQuantidadeNFA_PIsemPPB"))->text(), t("Quant. comercial em UN"));
        const auto tenta = [&] {
            a.msgs.responde(Msg::OK);
            i.incluir();
        };
        tenta();
        i.digita(Papel::NumeroNF, t("77"));
        a.sai(i.nome(Papel::Serie));
        tenta();
        i.digita(Papel::ItemNF, t("3"));
        a.sai(i.nome(Papel::Serie));
        tenta();
        i.digita(Papel::Data, t("15012008"));
        a.sai(i.nome(Papel::Serie));
        tenta();
        i.digita(Papel::Quantidade, t("2"));
        a.clica(i.nome(Papel::DecretoLei));
        QVERIFY(i.quadro()->campo(Papel::ValorUnitario)->isEnabled());
        tenta();
        QCOMPARE(a.msgs.textos(), (QStringList{t("O campo número da NF de entrada deve ser preenchido."),
                                               t("O campo item da NF não pode ser nulo."), t("Data de emissão ausente."),
                                               t("O campo quantidade comercial não pode ser nulo."),
                                               t("O campo campo valor unitário não pode ser nulo.")}));
        a.msgs.limpa();
        i.digita(Papel::ValorUnitario, t("3,5"));
        a.sai(i.nome(Papel::Serie));
        // Series, CFOP and CNPJ are not asked for in a monthly line.
        i.incluir();
        QCOMPARE(a.msgs.textos(), QStringList());
        QCOMPARE(i.linhas(t("NR_NF_AQUIS = '000077' AND NR_ITEM_NF_AQUIS = '003' AND IND_DL_288_67 = 'S' AND "
                            "VL_INSUMO_UNID_INS = '3,5000000' AND QT_INSUMO_UNID_INS = '2,00000'")),
                 1);
        // Switching the Decreto-Lei off empties and closes the unit value.
        i.escolheLinha(0);
        QCOMPARE(qobject_cast<QLineEdit*>(i.quadro()->campo(Papel::ValorUnitario))->text(), t("3,5000000"));
        a.clica(i.nome(Papel::DecretoLei));
        QVERIFY(!i.quadro()->campo(Papel::ValorUnitario)->isEnabled());
        QCOMPARE(qobject_cast<QLineEdit*>(i.quadro()->campo(Papel::ValorUnitario))->text(), QString());
    }

    void nfaDoInsumoIndividualPedeTudoEOInsumo()
    {
        Ambiente a;
        Insumo i{a, true};
        i.prepara();
        i.escolheTipo(TipoDocumento::NFA);
        i.preenche();
        digitaSemCnpj(a, i);
        a.msgs.responde(Msg::OK);
        i.incluir();
        QCOMPARE(a.msgs.textos(), QStringList{t("O campo CNPJ deve ser preenchido.")});
        QCOMPARE(i.linhas(), 0);
    }

    void diDoInsumoMensalGuardaONomeDoInsumo()
    {
        Ambiente a;
        Insumo i{a, false};
        i.prepara();
        i.escolheTipo(TipoDocumento::DI);
        i.preenche();
        i.incluir();
        QCOMPARE(a.msgs.textos(), QStringList());
        QCOMPARE(conta(t("ITEM_DI_INS_MEN"), t("NM_INT_INSUMO = 'Insumo INS1'")), 1);
    }

private:
    static void digitaSemCnpj(Ambiente& a, Insumo& i)
    {
        a.campo<QLineEdit>(i.nome(Papel::CNPJ))->clear();
        a.sai(i.nome(Papel::Serie));
    }
};

QTEST_MAIN(tst_documentosInsumo)
#include "tst_documentosInsumo.moc"
