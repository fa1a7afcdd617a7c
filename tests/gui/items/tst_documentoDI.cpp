// The DI's own rules for a foreign product in both editors, through the real page "Documento de Origem"; the rules
// it shares with the other members of the family run in tst_documentoFamilia.
#include "DocumentoTeste.h"

using namespace DocumentoTeste;
using namespace modVRTPLN;

namespace {

QString t(const char* s)
{
    return QString::fromUtf8(s);
}

}  // namespace

class tst_documentoDI : public QObject {
    Q_OBJECT
private slots:
    void blocosDeValorSeguemAsCaixas_data()
    {
        QTest::addColumn<bool>("individual");
        QTest::addColumn<bool>("decreto");
        QTest::addColumn<bool>("obsolescencia");
        QTest::addColumn<bool>("suspensao");
        QTest::addColumn<bool>("abertos");
        for (bool ind : {false, true}) {
            const char* m = ind ? "individual" : "mensal";
            QTest::addRow("%s, nenhuma", m) << ind << false << false << false << false;
            QTest::addRow("%s, decreto", m) << ind << true << false << false << true;
            QTest::addRow("%s, decreto e obsolescência", m) << ind << true << true << false << false;
            QTest::addRow("%s, eletrônica com suspensão e obsolescência", m) << ind << true << true << true << true;
            QTest::addRow("%s, só suspensão", m) << ind << false << false << true << true;
        }
    }
    void blocosDeValorSeguemAsCaixas()
    {
        QFETCH(bool, individual);
        QFETCH(bool, decreto);
        QFETCH(bool, obsolescencia);
        QFETCH(bool, suspensao);
        QFETCH(bool, abertos);
        Ambiente a;
        Cenario c(a, individual, TipoDocumento::DI);
        if (decreto)
            c.clica(Papel::DecretoLei);
        QCOMPARE(c.ativo(Papel::Obsolescencia), decreto);
        if (obsolescencia)
            c.clica(Papel::Obsolescencia);
        if (suspensao)
            c.clica(Papel::Suspensao);
        for (Papel p : {Papel::Moeda0, Papel::Valor0, Papel::Moeda1, Papel::Valor1, Papel::Moeda2, Papel::Valor2})
            QCOMPARE(c.ativo(p), abertos);
        // Switching the Decreto-Lei off takes the obsolescence with it.
        if (decreto) {
            c.clica(Papel::DecretoLei);
            QVERIFY(!c.marcado(Papel::Obsolescencia));
            QVERIFY(!c.ativo(Papel::Obsolescencia));
        }
        QCOMPARE(a.msgs.inesperadas, 0);
    }

    void valorTotalSoComObsolescenciaNoMensal()
    {
        Ambiente a;
        Cenario c(a, false, TipoDocumento::DI);
        QVERIFY(!c.ativo(Papel::ValorTotal));
        c.clica(Papel::DecretoLei);
        c.clica(Papel::Obsolescencia);
        QVERIFY(c.ativo(Papel::ValorTotal));
        c.digita(Papel::ValorTotal, t("150"));
        c.clica(Papel::Obsolescencia);
        QVERIFY(!c.ativo(Papel::ValorTotal));
        QCOMPARE(c.texto(Papel::ValorTotal), QString());
        QCOMPARE(a.msgs.inesperadas, 0);
    }

    void naoEletronicaNaoTemSuspensao_data() { editores(); }
    void naoEletronicaNaoTemSuspensao()
    {
        QFETCH(bool, individual);
        Ambiente a;
        Cenario c(a, individual, TipoDocumento::DI);
        c.digita(Papel::Numero, numeroDI());
        c.clica(Papel::Suspensao);
        QVERIFY(c.marcado(Papel::Suspensao));
        c.clica(Papel::Nao);
        QVERIFY(!c.marcado(Papel::Suspensao));
        QVERIFY(!c.ativo(Papel::Suspensao));
        QVERIFY(!c.quadro()->campo(Papel::Numero)->isVisible());
        QVERIFY(c.quadro()->campo(Papel::Ano)->isVisible());
        QCOMPARE(qobject_cast<MaskedField*>(c.quadro()->campo(Papel::Numero))->digits(), QString());
        // Clicking the disabled check changes nothing.
        c.clica(Papel::Suspensao);
        QVERIFY(!c.marcado(Papel::Suspensao));
        c.digita(Papel::Ano, t("95"));
        c.clica(Papel::Sim);
        QVERIFY(c.ativo(Papel::Suspensao));
        QCOMPARE(c.texto(Papel::Ano), QString());
        QCOMPARE(a.msgs.inesperadas, 0);
    }

    void numeroComDigitoErradoRecusado_data() { editores(); }
    void numeroComDigitoErradoRecusado()
    {
        QFETCH(bool, individual);
        Ambiente a;
        Cenario c(a, individual, TipoDocumento::DI);
        QString errado = numeroDI();
        errado[9] = QChar('0' + (errado.at(9).digitValue() + 1) % 10);
        a.msgs.responde(Msg::OK);
        c.digita(Papel::Numero, errado);
        QCOMPARE(a.msgs.textos(), QStringList{t("Número da DI inválido.")});
        a.msgs.limpa();
        a.msgs.responde(Msg::OK);
        c.digita(Papel::Numero, t("0000000000"));
        QCOMPARE(a.msgs.textos(), QStringList{t("Número da DI inválido.")});
        a.msgs.limpa();
        c.digita(Papel::Numero, numeroDI());
        QCOMPARE(a.msgs.caixas.size(), 0);
        QCOMPARE(a.msgs.inesperadas, 0);
    }

    void partesDoNumeroAntigoAoSair_data()
    {
        QTest::addColumn<bool>("individual");
        QTest::addColumn<int>("papel");
        QTest::addColumn<QString>("valor");
        QTest::addColumn<QString>("mensagem");
        QTest::addColumn<QString>("resultado");
        const int ano = int(Papel::Ano), orgao = int(Papel::Orgao), seq = int(Papel::Sequencial);
        const int adicao = int(Papel::Adicao), item = int(Papel::ItemAdicao);
        QTest::newRow("mensal, ano zero") << false << ano << "00" << t("Este campo não pode ser igual a zero.") << "00";
        QTest::newRow("mensal, ano 97 sem limites") << false << ano << "97" << QString() << "97";
        QTest::newRow("mensal, ano de um dígito") << false << ano << "9" << t("Campo inválido.") << "9";
        QTest::newRow("mensal, órgão curto") << false << orgao << "123" << t("Campo inválido.") << "123";
        QTest::newRow("mensal, seqüencial curto") << false << seq << "123" << t("Informe número de 6 dígitos.") << "123";
        QTest::newRow("mensal, adição vira 000") << false << adicao << "7" << QString() << "007";
        QTest::newRow("mensal, adição zero") << false << adicao << "0" << t("Este campo não pode ser igual a zero.") << "0";
        QTest::newRow("mensal, item vira 00") << false << item << "5" << QString() << "05";
        QTest::newRow("individual, ano 97 fora") << true << ano << "97" << t("Campo inválido.") << "97";
        QTest::newRow("individual, ano 49 fora") << true << ano << "49" << t("Campo inválido.") << "49";
        QTest::newRow("individual, ano 00 fora") << true << ano << "00" << t("Campo inválido.") << "00";
        QTest::newRow("individual, ano 96") << true << ano << "96" << QString() << "96";
        QTest::newRow("individual, órgão zero") << true << orgao << "0000000" << t("Campo deve ser maior que zero.") << "0000000";
        QTest::newRow("individual, órgão curto") << true << orgao << "12" << t("Campo inválido.") << "12";
        QTest::newRow("individual, seqüencial zero") << true << seq << "000000" << t("Campo deve ser maior que zero.") << "000000";
        QTest::newRow("individual, adição zero") << true << adicao << "000" << t("Campo deve ser maior que zero.") << "000";
        QTest::newRow("individual, item vira 00") << true << item << "3" << QString() << "03";
        QTest::newRow("individual, item zero") << true << item << "0" << t("Campo deve ser maior que zero.") << "0";
    }
    void partesDoNumeroAntigoAoSair()
    {
        QFETCH(bool, individual);
        QFETCH(int, papel);
        QFETCH(QString, valor);
        QFETCH(QString, mensagem);
        QFETCH(QString, resultado);
        Ambiente a;
        Cenario c(a, individual, TipoDocumento::DI);
        c.clica(Papel::Nao);
        const Papel p = static_cast<Papel>(papel);
        c.digitaESai(p, valor, mensagem, p == Papel::Quantidade ? Papel::Adicao : Papel::Quantidade);
        QCOMPARE(c.texto(p), resultado);
        QCOMPARE(a.msgs.inesperadas, 0);
    }

    void validacaoNaOrdem_data()
    {
        const QStringList inicio{t("O campo número da DI deve ser preenchido."), t("DI incorreta.")};
        const QStringList fim{t("O campo quantidade comercial não pode ser nulo."), t("O campo moeda não pode ser nulo."),
                              t("O campo valor unitário não pode ser nulo."), t("O campo moeda não pode ser nulo.")};
        editoresCom("mensagens",
                    inicio + QStringList{t("O campo adição não pode ser nulo."), t("O campo Item não pode ser nulo.")} + fim,
                    inicio
                        + QStringList{t("O campo número da adição deve ser preenchido."),
                                      t("O campo número do item da adição deve ser preenchido.")}
                        + fim);
    }
    void validacaoNaOrdem()
    {
        QFETCH(bool, individual);
        QFETCH(QStringList, mensagens);
        Ambiente a;
        Cenario c(a, individual, TipoDocumento::DI);
        // Each Incluir is refused by the next rule; the field that fails is filled before the next click.
        const QList<std::function<void()>> corrige{
            [&] { qobject_cast<MaskedField*>(c.quadro()->campo(Papel::Numero))->setDigits(t("0912345")); },
            [&] { qobject_cast<MaskedField*>(c.quadro()->campo(Papel::Numero))->setDigits(numeroDI()); },
            [&] { qobject_cast<QLineEdit*>(c.quadro()->campo(Papel::Adicao))->setText(t("001")); },
            [&] { qobject_cast<QLineEdit*>(c.quadro()->campo(Papel::ItemAdicao))->setText(t("01")); },
            [&] {
                c.digita(Papel::Quantidade, t("3"));
                c.clica(Papel::DecretoLei);
            },
            [&] { c.digita(Papel::Moeda0, t("220")); },
            [&] {
                c.digita(Papel::Valor0, t("12,5"));
                c.digita(Papel::Valor1, t("2"));
            },
            [&] { c.digita(Papel::Moeda1, t("978")); },
        };
        // A short number is refused as well when Incluir takes the focus from it.
        QList<QStringList> passos;
        for (int i = 0; i < mensagens.size(); ++i)
            passos << (i == 1 ? QStringList{t("Número da DI inválido."), mensagens.at(i)} : QStringList{mensagens.at(i)});
        c.validaNaOrdem(passos, corrige);
        if (QTest::currentTestFailed())
            return;
        QCOMPARE(valorDe(c.tabelaValores(), t("CD_MOEDA_NEG || '|' || CD_MOEDA_FRETE || '|' || CD_MOEDA_SEGURO")),
                 t("220|978|"));
        QVERIFY(AlteracaoPendente);
        QCOMPARE(a.msgs.inesperadas, 0);
    }

    void antigaSemPartesRecusada_data() { editores(); }
    void antigaSemPartesRecusada()
    {
        QFETCH(bool, individual);
        Ambiente a;
        Cenario c(a, individual, TipoDocumento::DI);
        c.clica(Papel::Nao);
        c.digita(Papel::Ano, t("95"));
        c.digita(Papel::Orgao, t("1234567"));
        a.msgs.responde(Msg::OK);
        c.incluir();
        QCOMPARE(a.msgs.textos(), QStringList{t("Os campos ano, órgão e seqüencial devem ser preenchidos.")});
        QCOMPARE(BancoTeste::conta(c.tabela()), 0);
        QCOMPARE(a.msgs.inesperadas, 0);
    }

    void freteZeroSemCodigoFicaEVazioVoltaZero_data() { editores(); }
    void freteZeroSemCodigoFicaEVazioVoltaZero()
    {
        QFETCH(bool, individual);
        Ambiente a;
        Cenario c(a, individual, TipoDocumento::DI);
        c.preencheDI();
        c.clica(Papel::DecretoLei);
        c.digita(Papel::Moeda0, t("220"));
        c.digita(Papel::Valor0, t("10"));
        c.digita(Papel::Valor1, t("0"));
        c.incluir();
        QCOMPARE(a.msgs.textos(), QStringList());
        const QString frete = individual ? t("VL_FRETE_UNID_NFS") : t("VL_FRETE_UNID_INT");
        const QString seguro = individual ? t("VL_SEGURO_UNID_NFS") : t("VL_SEGURO_UNID_INT");
        QCOMPARE(valorDe(c.tabelaValores(), t("CD_MOEDA_FRETE || '|' || ") + frete + t(" || '|' || CD_MOEDA_SEGURO || '|' || ") + seguro),
                 t("|0,0000000||0,0000000"));
        c.escolheLinha(0);
        QCOMPARE(c.texto(Papel::Moeda2), QString());
        QVERIFY(Funcoes::EhZero(c.texto(Papel::Valor2)));
        QCOMPARE(c.texto(Papel::Moeda1), QString());
        QVERIFY(Funcoes::EhZero(c.texto(Papel::Valor1)));
        QCOMPARE(c.texto(Papel::Moeda0), t("220"));
        QCOMPARE(a.msgs.inesperadas, 0);
    }

    void linhaDeValoresSegueOMembro_data()
    {
        QTest::addColumn<bool>("individual");
        QTest::addColumn<bool>("obsolescencia");
        QTest::addColumn<bool>("comFilha");
        QTest::newRow("mensal, decreto") << false << false << true;
        QTest::newRow("mensal, decreto e obsolescência guarda o total") << false << true << true;
        QTest::newRow("individual, decreto") << true << false << true;
        QTest::newRow("individual, decreto e obsolescência sem valores") << true << true << false;
    }
    void linhaDeValoresSegueOMembro()
    {
        QFETCH(bool, individual);
        QFETCH(bool, obsolescencia);
        QFETCH(bool, comFilha);
        Ambiente a;
        Cenario c(a, individual, TipoDocumento::DI);
        c.preencheDI();
        c.clica(Papel::DecretoLei);
        if (obsolescencia) {
            c.clica(Papel::Obsolescencia);
            if (!individual)
                c.digita(Papel::ValorTotal, t("321,5"));
        } else {
            c.digita(Papel::Moeda0, t("220"));
            c.digita(Papel::Valor0, t("10"));
        }
        c.incluir();
        QCOMPARE(a.msgs.textos(), QStringList());
        QCOMPARE(valorDe(c.tabela(), t("IND_DL_288_67 || IND_OBSOLE_RESIDUO || IND_SUSP_PIS_COFINS")),
                 obsolescencia ? t("SSN") : t("SNN"));
        QCOMPARE(BancoTeste::conta(c.tabelaValores()), comFilha ? 1 : 0);
        if (obsolescencia && !individual)
            QCOMPARE(valorDe(c.tabelaValores(), t("VL_TOT_PROD_OBSOLE")), t("321,50"));
        // Alterar without the Decreto-Lei takes the child row away.
        c.escolheLinha(0);
        QVERIFY(c.marcado(Papel::DecretoLei));
        QCOMPARE(c.marcado(Papel::Obsolescencia), obsolescencia);
        c.clica(Papel::DecretoLei);
        c.alterar();
        QCOMPARE(a.msgs.textos(), QStringList());
        QCOMPARE(BancoTeste::conta(c.tabelaValores()), 0);
        QCOMPARE(valorDe(c.tabela(), t("IND_DL_288_67")), t("N"));
        QCOMPARE(a.msgs.inesperadas, 0);
    }

    void suspensaoGuardaValores_data() { editores(); }
    void suspensaoGuardaValores()
    {
        QFETCH(bool, individual);
        Ambiente a;
        Cenario c(a, individual, TipoDocumento::DI);
        c.preencheDI();
        c.clica(Papel::Suspensao);
        c.digita(Papel::Moeda0, t("978"));
        c.digita(Papel::Valor0, t("1,1234567"));
        c.digita(Papel::Moeda2, t("220"));
        c.digita(Papel::Valor2, t("0,5"));
        c.incluir();
        QCOMPARE(a.msgs.textos(), QStringList());
        const QString valor = individual ? t("VL_INS_PROD_UNID_NFS") : t("VL_PROD_UNID_PROD");
        QCOMPARE(valorDe(c.tabelaValores(), t("CD_MOEDA_NEG || '|' || ") + valor + t(" || '|' || CD_MOEDA_SEGURO")),
                 t("978|1,1234567|220"));
        QCOMPARE(valorDe(c.tabela(), t("NR_DI || '|' || NR_DI_ANTIGA || '|' || NR_ADICAO_DI || '|' || NR_ITEM_ADICAO || '|' || IND_SUSP_PIS_COFINS")),
                 numeroDI() + t("||001|01|S"));
        QCOMPARE(a.msgs.inesperadas, 0);
    }

    void antigaGuardaAnoOrgaoSequencialJuntos_data() { editores(); }
    void antigaGuardaAnoOrgaoSequencialJuntos()
    {
        QFETCH(bool, individual);
        Ambiente a;
        Cenario c(a, individual, TipoDocumento::DI);
        c.preencheDIAntiga();
        c.incluir();
        QCOMPARE(a.msgs.textos(), QStringList());
        QCOMPARE(valorDe(c.tabela(), t("NR_DI || '|' || NR_DI_ANTIGA")), t("|951234567654321"));
        QCOMPARE(c.quadro()->grade->cellText(0, 4), t("951234567654321"));
        c.escolheLinha(0);
        QVERIFY(qobject_cast<QRadioButton*>(c.quadro()->campo(Papel::Nao))->isChecked());
        QCOMPARE(c.texto(Papel::Ano), t("95"));
        QCOMPARE(c.texto(Papel::Orgao), t("1234567"));
        QCOMPARE(c.texto(Papel::Sequencial), t("654321"));
        // The same old DI again is the same line.
        c.quadro()->limpa();
        c.preencheDIAntiga();
        a.msgs.responde(Msg::OK);
        c.incluir();
        QCOMPARE(a.msgs.textos(), QStringList{individual ? t("DI já incluída.")
                                                         : t("O conjunto Ano/Órgão/Seqüencial/Adição/Item já encontra-se incluído.")});
        QCOMPARE(BancoTeste::conta(c.tabela()), 1);
        QCOMPARE(a.msgs.inesperadas, 0);
    }

    void mesmaDIEmDoisDestinosDoProduto()
    {
        Ambiente a;
        Cenario c(a, false);
        c.declaracaoComProduto();
        c.abre(TipoDocumento::DI, 0);
        c.preencheDI();
        c.incluir();
        c.abre(TipoDocumento::DI, 1);
        QCOMPARE(c.quadro()->grade->dataRowCount(), 0);
        c.preencheDI();
        c.incluir();
        QCOMPARE(a.msgs.textos(), QStringList());
        QCOMPARE(BancoTeste::conta(t("ITEM_DI_PE_MEN"), t("NR_DI = ?"), {numeroDI()}), 2);
        QCOMPARE(c.quadro()->grade->cellText(0, 2), QString::fromUtf8("Demais Unidades da Federação"));
        QCOMPARE(a.msgs.inesperadas, 0);
    }

    void escolhaSemProdutoOuDestinoRecusada()
    {
        Ambiente a;
        Cenario c(a, false);
        c.declaracaoComProduto();
        abaPE(a)->tabProdutoEstrangeiro->setCurrentIndex(1);
        a.msgs.responde(Msg::OK);
        a.clica(t("optDI_tabProdutoEstrangeiro"));
        QCOMPARE(a.msgs.textos(), QStringList{t("Selecione um produto antes")});
        QVERIFY(!c.pagina()->opcoes[0]->isChecked());
        a.escolhe(t("cboDocProdutoPE"), t("PROD1"));
        a.msgs.limpa();
        a.msgs.responde(Msg::OK);
        a.clica(t("optDI_tabProdutoEstrangeiro"));
        QCOMPARE(a.msgs.textos(), QStringList{t("Selecione um local de destino antes")});
        QVERIFY(!c.quadro()->isVisible());
        a.escolhe(t("cboLocalDestinoProduto"), t("Estados AC, AM, RO e RR"));
        QCOMPARE(a.campo<QLineEdit>(t("txtQuantLocalPEDocOrigem"))->text(), t("12,00000"));
        QCOMPARE(a.msgs.inesperadas, 0);
    }

    void semProdutosVoltaParaProduto_data()
    {
        editoresCom("mensagem", t("Não existem produtos cadastrados"), t("Não existem produtos cadastrados."));
    }
    void semProdutosVoltaParaProduto()
    {
        QFETCH(bool, individual);
        QFETCH(QString, mensagem);
        Ambiente a;
        a.novaPreenchida(individual);
        a.vaiParaAba(1);
        a.msgs.responde(Msg::OK);
        abaPE(a)->tabProdutoEstrangeiro->setCurrentIndex(1);
        QCOMPARE(a.msgs.textos(), QStringList{mensagem});
        QCOMPARE(a.msgs.caixas.first().icone(), individual ? Msg::Critical : Msg::Information);
        QCOMPARE(abaPE(a)->tabProdutoEstrangeiro->currentIndex(), 0);
        QCOMPARE(a.msgs.inesperadas, 0);
    }
};

QTEST_MAIN(tst_documentoDI)
#include "tst_documentoDI.moc"
