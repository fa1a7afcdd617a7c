// The acquisition invoice's own rules for a foreign product in both editors, through the real page "Documento de
// Origem": CFOP against the year of the date, series, number, item, date and CNPJ checks, the unit value and the
// obsolete product's total following the checks, the validation order of each editor. The rules shared with the
// other members run in tst_documentoFamilia.
#include "DocumentoTeste.h"

#include "gui/widgets/DigitField.h"

using namespace DocumentoTeste;
using namespace modVRTPLN;

namespace {

QString t(const char* s)
{
    return QString::fromUtf8(s);
}

}  // namespace

class tst_documentoNFA : public QObject {
    Q_OBJECT
private slots:
    void cfopContraOAnoDaData_data()
    {
        QTest::addColumn<bool>("individual");
        QTest::addColumn<QString>("data");
        QTest::addColumn<QString>("cfop");
        QTest::addColumn<QString>("mensagem");
        for (bool ind : {false, true}) {
            const char* m = ind ? "individual" : "mensal";
            QTest::addRow("%s, 5102 em 31/12/2002", m) << ind << "31122002" << "5102" << t("Ano anterior a 2003, informar CFOP com 3 dígitos.");
            QTest::addRow("%s, 5102 em 2003", m) << ind << "01012003" << "5102" << QString();
            QTest::addRow("%s, 510 em 2003", m) << ind << "01012003" << "510" << t("Ano superior a 2002, informar CFOP com 4 dígitos.");
            QTest::addRow("%s, 510 em 2002", m) << ind << "31122002" << "510" << QString();
            QTest::addRow("%s, começa com 4", m) << ind << "01012003" << "4102" << t("Campo inválido.");
            QTest::addRow("%s, começa com 7", m) << ind << "01012003" << "7102" << t("Campo inválido.");
            QTest::addRow("%s, começa com 8", m) << ind << "01012003" << "8102" << t("Campo inválido.");
            QTest::addRow("%s, começa com 9", m) << ind << "01012003" << "9102" << t("Campo inválido.");
            QTest::addRow("%s, dois dígitos", m) << ind << "01012003" << "51" << t("Campo inválido.");
        }
    }
    void cfopContraOAnoDaData()
    {
        QFETCH(bool, individual);
        QFETCH(QString, data);
        QFETCH(QString, cfop);
        QFETCH(QString, mensagem);
        Ambiente a;
        Cenario c(a, individual, TipoDocumento::NFA);
        c.digita(Papel::Data, data);
        c.digita(Papel::CFOP, cfop);
        if (!mensagem.isEmpty())
            a.msgs.responde(Msg::OK);
        a.sai(c.nome(Papel::Quantidade));
        QCOMPARE(a.msgs.textos(), mensagem.isEmpty() ? QStringList() : QStringList{mensagem});
        QCOMPARE(a.msgs.inesperadas, 0);
    }

    void cfopAntesDaDataTestadoQuandoADataSai_data() { editores(); }
    void cfopAntesDaDataTestadoQuandoADataSai()
    {
        QFETCH(bool, individual);
        Ambiente a;
        Cenario c(a, individual, TipoDocumento::NFA);
        c.digita(Papel::CFOP, t("5102"));
        c.digita(Papel::Data, t("31122002"));
        QCOMPARE(a.msgs.textos(), QStringList());
        a.msgs.responde(Msg::OK);
        a.sai(c.nome(Papel::Quantidade));
        QCOMPARE(a.msgs.textos(), QStringList{t("Ano anterior a 2003, informar CFOP com 3 dígitos.")});
        QTRY_COMPARE(QApplication::focusWidget(), c.quadro()->campo(Papel::CFOP));
        QCOMPARE(a.msgs.inesperadas, 0);
    }

    void linhaMensalSemCfopSerieECnpj()
    {
        Ambiente a;
        Cenario c(a, false, TipoDocumento::NFA);
        c.digita(Papel::NumeroNF, t("1234"));
        c.digita(Papel::ItemNF, t("1"));
        c.digita(Papel::Data, t("15012008"));
        c.digita(Papel::Quantidade, t("2"));
        a.sai(c.nome(Papel::NumeroNF));
        c.incluir();
        QCOMPARE(a.msgs.textos(), QStringList());
        QCOMPARE(valorDe(c.tabela(), t("NR_NF_AQUIS || '|' || NR_SERIE_NF_AQUIS || '|' || NR_ITEM_NF_AQUIS || '|' || "
                                   "DT_EMISS_NF_AQUIS || '|' || CD_CFOP_NF_AQUIS || '|' || NR_CNPJ_FORNECEDOR || '|' || "
                                   "IND_DL_288_67 || IND_OBSOLE_RESIDUO || '|' || QT_PROD_UNID_PROD")),
                 t("001234||001|15012008|||NN|2,00000"));
        QCOMPARE(c.quadro()->grade->cellText(0, 3), t("001234"));
        QCOMPARE(a.msgs.inesperadas, 0);
    }

    // The longest number the monthly field takes shows as seven characters, so the monthly test of a number text
    // of eight or more characters never fires.
    void numeroMaisLongoTemSeteCaracteres()
    {
        Ambiente a;
        Cenario c(a, false, TipoDocumento::NFA);
        c.preencheValida();
        c.digita(Papel::NumeroNF, t("98765432"));
        a.sai(c.nome(Papel::Quantidade));
        QCOMPARE(c.texto(Papel::NumeroNF), t("987.654"));
        c.incluir();
        QCOMPARE(a.msgs.textos(), QStringList());
        QCOMPARE(valorDe(c.tabela(), t("NR_NF_AQUIS")), t("987654"));
        QCOMPARE(a.msgs.inesperadas, 0);
    }

    void valoresSeguemAsCaixasNoMensal()
    {
        Ambiente a;
        Cenario c(a, false, TipoDocumento::NFA);
        QVERIFY(!c.ativo(Papel::ValorUnitario));
        QVERIFY(!c.ativo(Papel::ValorTotal));
        QVERIFY(!c.ativo(Papel::Obsolescencia));
        c.clica(Papel::DecretoLei);
        QVERIFY(c.ativo(Papel::ValorUnitario));
        QVERIFY(!c.ativo(Papel::ValorTotal));
        c.digita(Papel::ValorUnitario, t("2,5"));
        c.clica(Papel::Obsolescencia);
        QVERIFY(!c.ativo(Papel::ValorUnitario));
        QCOMPARE(c.texto(Papel::ValorUnitario), QString());
        QVERIFY(c.ativo(Papel::ValorTotal));
        c.digita(Papel::ValorTotal, t("100"));
        c.clica(Papel::Obsolescencia);
        QVERIFY(!c.ativo(Papel::ValorTotal));
        QCOMPARE(c.texto(Papel::ValorTotal), QString());
        QVERIFY(c.ativo(Papel::ValorUnitario));
        c.clica(Papel::Obsolescencia);
        c.clica(Papel::DecretoLei);
        QVERIFY(!c.marcado(Papel::Obsolescencia));
        QVERIFY(!c.ativo(Papel::Obsolescencia));
        QVERIFY(!c.ativo(Papel::ValorUnitario));
        QCOMPARE(a.msgs.inesperadas, 0);
    }

    // The individual editor opens the unit value with the Decreto-Lei and then follows the obsolescence: on
    // keeps it open, off empties and closes it.
    void valoresSeguemAsCaixasNoIndividual()
    {
        Ambiente a;
        Cenario c(a, true, TipoDocumento::NFA);
        QVERIFY(!c.ativo(Papel::ValorUnitario));
        c.clica(Papel::DecretoLei);
        QVERIFY(c.ativo(Papel::Obsolescencia));
        QVERIFY(c.ativo(Papel::ValorUnitario));
        c.clica(Papel::Obsolescencia);
        QVERIFY(c.ativo(Papel::ValorUnitario));
        c.digita(Papel::ValorUnitario, t("2"));
        c.clica(Papel::Obsolescencia);
        QVERIFY(!c.ativo(Papel::ValorUnitario));
        QCOMPARE(c.texto(Papel::ValorUnitario), QString());
        c.clica(Papel::Obsolescencia);
        QVERIFY(c.ativo(Papel::ValorUnitario));
        c.clica(Papel::DecretoLei);
        QVERIFY(!c.marcado(Papel::Obsolescencia));
        QVERIFY(!c.ativo(Papel::ValorUnitario));
        QCOMPARE(a.msgs.inesperadas, 0);
    }

    void serieFiltradaERecusadaEmZero_data()
    {
        QTest::addColumn<bool>("individual");
        QTest::addColumn<QString>("digitado");
        QTest::addColumn<QString>("resultado");
        QTest::addColumn<QString>("mensagem");
        QTest::newRow("mensal, maiúsculas sem especiais") << false << "a-b.c/1" << "ABC1" << QString();
        QTest::newRow("individual, letras e dígitos") << true << "a-b.c/1" << "abc1" << QString();
        QTest::newRow("mensal, zero") << false << "000" << "000" << t("O número da série não pode ser zero.");
        QTest::newRow("individual, zero") << true << "00" << "00" << t("Série da Nota Fiscal inválida.");
    }
    void serieFiltradaERecusadaEmZero()
    {
        QFETCH(bool, individual);
        QFETCH(QString, digitado);
        QFETCH(QString, resultado);
        QFETCH(QString, mensagem);
        Ambiente a;
        Cenario c(a, individual, TipoDocumento::NFA);
        if (!mensagem.isEmpty())
            a.msgs.responde(Msg::OK);
        c.digita(Papel::Serie, digitado);
        QCOMPARE(c.texto(Papel::Serie), resultado);
        a.sai(c.nome(Papel::Quantidade));
        QCOMPARE(a.msgs.textos(), mensagem.isEmpty() ? QStringList() : QStringList{mensagem});
        QCOMPARE(a.msgs.inesperadas, 0);
    }

    void camposDaNotaAoSair_data()
    {
        QTest::addColumn<bool>("individual");
        QTest::addColumn<int>("papel");
        QTest::addColumn<QString>("valor");
        QTest::addColumn<QString>("mensagem");
        QTest::addColumn<QString>("resultado");
        const int numero = int(Papel::NumeroNF), item = int(Papel::ItemNF), data = int(Papel::Data), cnpj = int(Papel::CNPJ);
        QTest::newRow("mensal, número de sete dígitos") << false << numero << "1234567" << QString() << "123456";
        QTest::newRow("mensal, número zero") << false << numero << "0" << t("Número da nota fiscal de entrada inválido.") << "0";
        QTest::newRow("individual, número zero") << true << numero << "000" << t("Número da Nota Fiscal de entrada inválido.") << "000";
        QTest::newRow("mensal, item zero") << false << item << "0" << t("O número do item não pode ser zero.") << "0";
        QTest::newRow("individual, item zero") << true << item << "0" << t("Campo deve ser maior que zero.") << "0";
        QTest::newRow("mensal, item vira 000") << false << item << "7" << QString() << "007";
        QTest::newRow("mensal, data inválida") << false << data << "31022008" << t("Data inválida.") << "31022008";
        QTest::newRow("individual, data antes de 1970") << true << data << "31121969"
                                                        << t("Ano da Nota Fiscal deve ser igual ou superior a 1970.") << "31121969";
        QTest::newRow("mensal, CNPJ zero") << false << cnpj << "00000000000000" << t("CNPJ inválido.") << "00000000000000";
        QTest::newRow("individual, CNPJ com dígito errado") << true << cnpj << "11222333000180" << t("CNPJ inválido.") << "11222333000180";
        QTest::newRow("individual, CNPJ bom") << true << cnpj << "11222333000181" << QString() << "11222333000181";
    }
    void camposDaNotaAoSair()
    {
        QFETCH(bool, individual);
        QFETCH(int, papel);
        QFETCH(QString, valor);
        QFETCH(QString, mensagem);
        QFETCH(QString, resultado);
        Ambiente a;
        Cenario c(a, individual, TipoDocumento::NFA);
        const Papel p = static_cast<Papel>(papel);
        c.digitaESai(p, valor, mensagem);
        QWidget* w = c.quadro()->campo(p);
        const QString visto = qobject_cast<DigitField*>(w)    ? qobject_cast<DigitField*>(w)->value()
                              : qobject_cast<MaskedField*>(w) ? qobject_cast<MaskedField*>(w)->digits()
                                                              : c.texto(p);
        QCOMPARE(visto, resultado);
        QCOMPARE(a.msgs.inesperadas, 0);
    }

    void validacaoNaOrdemNoMensal()
    {
        Ambiente a;
        Cenario c(a, false, TipoDocumento::NFA);
        auto* numero = qobject_cast<DigitField*>(c.quadro()->campo(Papel::NumeroNF));
        auto* cfop = qobject_cast<DigitField*>(c.quadro()->campo(Papel::CFOP));
        const QString nulo = t("Este campo não pode ser nulo");
        // Each Incluir is refused by the next rule; a field refused on leaving as Incluir takes the focus shows
        // its own message first.
        const QList<QStringList> mensagens{{t("O campo número da NF de entrada deve ser preenchido.")},
                                           {t("Número da nota fiscal de entrada inválido."), t("Este campo não pode ser zero.")},
                                           {nulo},
                                           {nulo},
                                           {nulo},
                                           {t("Data de emissão ausente.")},
                                           {t("Este campo não pode ser nulo.")},
                                           {t("Campo inválido."), t("Campo inválido.")}};
        const QList<std::function<void()>> corrige{
            [&] { numero->setValue(t("000000")); },
            [&] { numero->setValue(t("001234")); },
            [&] {
                c.digita(Papel::Quantidade, t("3"));
                c.clica(Papel::DecretoLei);
                c.clica(Papel::Obsolescencia);
            },
            [&] { c.clica(Papel::Obsolescencia); },
            [&] { c.digita(Papel::ValorUnitario, t("2,5")); },
            [&] { c.digita(Papel::Data, t("15012008")); },
            [&] {
                c.digita(Papel::ItemNF, t("1"));
                c.digita(Papel::CFOP, t("4102"));
            },
            [&] { cfop->setValue(t("5102")); },
        };
        c.validaNaOrdem(mensagens, corrige);
        if (QTest::currentTestFailed())
            return;
        QCOMPARE(valorDe(c.tabela(), t("NR_NF_AQUIS || '|' || CD_CFOP_NF_AQUIS || '|' || IND_DL_288_67 || '|' || VL_PROD_UNID_PROD")),
                 t("001234|5102|S|2,5000000"));
        QCOMPARE(a.msgs.inesperadas, 0);
    }

    void validacaoNaOrdemNoIndividual()
    {
        Ambiente a;
        Cenario c(a, true, TipoDocumento::NFA);
        auto* numero = qobject_cast<DigitField*>(c.quadro()->campo(Papel::NumeroNF));
        auto* cfop = qobject_cast<DigitField*>(c.quadro()->campo(Papel::CFOP));
        const QString anoSuperior = t("Ano superior a 2002, informar CFOP com 4 dígitos.");
        const QList<QStringList> mensagens{{t("O campo número da NF de entrada deve ser preenchido.")},
                                           {t("O campo série deve ser preenchido.")},
                                           {t("O campo data deve ser preenchido.")},
                                           {t("O campo item deve ser preenchido.")},
                                           {t("O campo CFOP deve ser preenchido.")},
                                           {anoSuperior, anoSuperior},
                                           {t("O campo CNPJ deve ser preenchido.")},
                                           {t("O campo quantidade comercial deve ser preenchido.")},
                                           {t("O campo valor unit. na unid. de medida comercial deve ser preenchido.")}};
        const QList<std::function<void()>> corrige{
            [&] { numero->setValue(t("001234")); },
            [&] { qobject_cast<QLineEdit*>(c.quadro()->campo(Papel::Serie))->setText(t("A")); },
            [&] { qobject_cast<MaskedField*>(c.quadro()->campo(Papel::Data))->setDigits(t("15012008")); },
            [&] { qobject_cast<DigitField*>(c.quadro()->campo(Papel::ItemNF))->setValue(t("001")); },
            [&] { cfop->setValue(t("510")); },
            [&] { cfop->setValue(t("5102")); },
            [&] { qobject_cast<MaskedField*>(c.quadro()->campo(Papel::CNPJ))->setDigits(CnpjFornecedor); },
            [&] {
                c.digita(Papel::Quantidade, t("3"));
                c.clica(Papel::DecretoLei);
            },
            [&] { c.digita(Papel::ValorUnitario, t("2")); },
        };
        c.validaNaOrdem(mensagens, corrige);
        QCOMPARE(a.msgs.inesperadas, 0);
    }

    void obsolescenciaGuardaOTotalSoNoMensal_data() { editores(); }
    void obsolescenciaGuardaOTotalSoNoMensal()
    {
        QFETCH(bool, individual);
        Ambiente a;
        Cenario c(a, individual, TipoDocumento::NFA);
        c.preencheValida();
        c.clica(Papel::DecretoLei);
        c.clica(Papel::Obsolescencia);
        if (individual)
            c.digita(Papel::ValorUnitario, t("2"));
        c.digita(Papel::ValorTotal, t("321,5"));
        a.sai(c.nome(Papel::Quantidade));
        c.incluir();
        QCOMPARE(a.msgs.textos(), QStringList());
        QCOMPARE(valorDe(c.tabela(), t("IND_DL_288_67 || IND_OBSOLE_RESIDUO")), t("SS"));
        // The individual editor writes its total only under a status bar it never shows: the value is not stored.
        QCOMPARE(valorDe(c.tabela(), individual ? t("COALESCE(VL_TOT_PROD_INT, '')") : t("VL_TOT_PROD_OBSOLE")),
                 individual ? QString() : t("321,50"));
        c.escolheLinha(0);
        QVERIFY(c.marcado(Papel::Obsolescencia));
        QCOMPARE(c.ativo(Papel::ValorUnitario), individual);
        QCOMPARE(a.msgs.inesperadas, 0);
    }

    void outroFornecedorComOMesmoNumero_data()
    {
        QTest::addColumn<bool>("individual");
        QTest::addColumn<QString>("mensagem");
        QTest::newRow("mensal, o CNPJ não conta") << false << t("O conjunto Número/Série(Subsérie)/Item da NF de entrada já foi incluído.");
        QTest::newRow("individual, dois fornecedores") << true << QString();
    }
    void outroFornecedorComOMesmoNumero()
    {
        QFETCH(bool, individual);
        QFETCH(QString, mensagem);
        Ambiente a;
        Cenario c(a, individual, TipoDocumento::NFA);
        c.preencheValida();
        c.incluir();
        c.preencheValida();
        c.digita(Papel::CNPJ, t("44555666000181"));
        a.sai(c.nome(Papel::Quantidade));
        if (!mensagem.isEmpty())
            a.msgs.responde(Msg::OK);
        c.incluir();
        QCOMPARE(a.msgs.textos(), mensagem.isEmpty() ? QStringList() : QStringList{mensagem});
        QCOMPARE(BancoTeste::conta(c.tabela()), mensagem.isEmpty() ? 2 : 1);
        QCOMPARE(a.msgs.inesperadas, 0);
    }
};

QTEST_MAIN(tst_documentoNFA)
#include "tst_documentoNFA.moc"
