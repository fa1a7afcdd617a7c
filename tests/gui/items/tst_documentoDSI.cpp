// The DSI's own rules for a foreign product in both editors, through the real page "Documento de Origem": values
// only under suspension and kept in the line itself, the number's and the old number's checks, the validation
// order. The rules shared with the other members run in tst_documentoFamilia.
#include "DocumentoTeste.h"

using namespace DocumentoTeste;
using namespace modVRTPLN;

namespace {

QString t(const char* s)
{
    return QString::fromUtf8(s);
}

const QList<Papel> Blocos{Papel::Moeda0, Papel::Valor0, Papel::Moeda1, Papel::Valor1, Papel::Moeda2, Papel::Valor2};

}  // namespace

class tst_documentoDSI : public QObject {
    Q_OBJECT
private slots:
    void semSuspensaoPassaSemValores_data() { editores(); }
    void semSuspensaoPassaSemValores()
    {
        QFETCH(bool, individual);
        Ambiente a;
        Cenario c(a, individual, TipoDocumento::DSI);
        for (Papel p : Blocos)
            QVERIFY(!c.ativo(p));
        c.preencheValida();
        c.incluir();
        QCOMPARE(a.msgs.textos(), QStringList());
        QCOMPARE(valorDe(c.tabela(), t("NR_DSI || '|' || NR_DSI_ANTIGA || '|' || NR_BEM || '|' || IND_SUSP_PIS_COFINS")),
                 numeroDSI() + t("||001|N"));
        // The values are written in the same statement, empty.
        QCOMPARE(valorDe(c.tabela(), t("CD_MOEDA_NEG || '|' || VL_PROD_UNID_PROD || '|' || VL_FRETE_UNID_INT")), t("||"));
        QCOMPARE(a.msgs.inesperadas, 0);
    }

    void suspensaoGuardaValoresNaLinha_data() { editores(); }
    void suspensaoGuardaValoresNaLinha()
    {
        QFETCH(bool, individual);
        Ambiente a;
        Cenario c(a, individual, TipoDocumento::DSI);
        c.preencheValida();
        c.clica(Papel::Suspensao);
        for (Papel p : Blocos)
            QVERIFY(c.ativo(p));
        c.digita(Papel::Moeda0, t("220"));
        c.digita(Papel::Valor0, t("3,25"));
        c.digita(Papel::Moeda2, t("978"));
        c.digita(Papel::Valor2, t("0,5"));
        c.incluir();
        QCOMPARE(a.msgs.textos(), QStringList());
        QCOMPARE(valorDe(c.tabela(), t("IND_SUSP_PIS_COFINS || '|' || CD_MOEDA_NEG || '|' || VL_PROD_UNID_PROD || '|' || "
                                        "CD_MOEDA_FRETE || '|' || VL_FRETE_UNID_INT || '|' || CD_MOEDA_SEGURO || '|' || "
                                        "VL_SEGURO_UNID_INT")),
                 t("S|220|3,2500000||0,0000000|978|0,5000000"));
        c.escolheLinha(0);
        QVERIFY(c.marcado(Papel::Suspensao));
        QCOMPARE(c.texto(Papel::Moeda2), t("978"));
        QCOMPARE(a.msgs.inesperadas, 0);
    }

    void suspensaoDesligadaELigadaEsvaziaOsBlocos_data() { editores(); }
    void suspensaoDesligadaELigadaEsvaziaOsBlocos()
    {
        QFETCH(bool, individual);
        Ambiente a;
        Cenario c(a, individual, TipoDocumento::DSI);
        c.clica(Papel::Suspensao);
        c.digita(Papel::Moeda0, t("220"));
        c.digita(Papel::Valor0, t("3"));
        c.clica(Papel::Suspensao);
        for (Papel p : Blocos)
            QVERIFY(!c.ativo(p));
        c.clica(Papel::Suspensao);
        QCOMPARE(c.texto(Papel::Moeda0), QString());
        QCOMPARE(c.texto(Papel::Valor0), QString());
        QVERIFY(c.ativo(Papel::Valor0));
        // "Não" takes the suspension away, as on a DI.
        c.clica(Papel::Nao);
        QVERIFY(!c.marcado(Papel::Suspensao));
        QVERIFY(!c.ativo(Papel::Suspensao));
        QVERIFY(!c.ativo(Papel::Valor0));
        QCOMPARE(a.msgs.inesperadas, 0);
    }

    void numeroDeAnoAntigoSoRecusadoNoIndividual_data()
    {
        QTest::addColumn<bool>("individual");
        QTest::addColumn<QString>("nove");
        QTest::addColumn<bool>("recusado");
        QTest::newRow("mensal, 50") << false << t("501234567") << false;
        QTest::newRow("mensal, 98") << false << t("981234567") << false;
        QTest::newRow("individual, 50") << true << t("501234567") << true;
        QTest::newRow("individual, 98") << true << t("981234567") << true;
        QTest::newRow("individual, 49") << true << t("491234567") << false;
        QTest::newRow("individual, 99") << true << t("991234567") << false;
    }
    void numeroDeAnoAntigoSoRecusadoNoIndividual()
    {
        QFETCH(bool, individual);
        QFETCH(QString, nove);
        QFETCH(bool, recusado);
        Ambiente a;
        Cenario c(a, individual, TipoDocumento::DSI);
        if (recusado)
            a.msgs.responde(Msg::OK);
        c.digita(Papel::Numero, numeroDSI(nove));
        a.sai(c.nome(Papel::Quantidade));
        QCOMPARE(a.msgs.textos(), recusado ? QStringList{t("Campo inválido.")} : QStringList());
        QCOMPARE(a.msgs.inesperadas, 0);
    }

    void numeroAoSair_data()
    {
        QTest::addColumn<bool>("individual");
        QTest::addColumn<QString>("numero");
        QTest::addColumn<QStringList>("mensagens");
        QTest::newRow("mensal, curto") << false << t("0912") << QStringList{t("Número da DSI inválido.")};
        QTest::newRow("individual, curto") << true << t("0912") << QStringList{t("Número deve ter 10 dígitos.")};
        QTest::newRow("mensal, zeros") << false << t("0000000000") << QStringList{t("Número da DSI inválido."), t("Número da DSI inválido.")};
        QTest::newRow("individual, zeros") << true << t("0000000000") << QStringList{t("Número da DSI inválido."), t("Número da DSI inválido.")};
    }
    void numeroAoSair()
    {
        QFETCH(bool, individual);
        QFETCH(QString, numero);
        QFETCH(QStringList, mensagens);
        Ambiente a;
        Cenario c(a, individual, TipoDocumento::DSI);
        for (int i = 0; i < mensagens.size(); ++i)
            a.msgs.responde(Msg::OK);
        c.digita(Papel::Numero, numero);
        a.sai(c.nome(Papel::Quantidade));
        // A complete number is checked while typing and again on leaving.
        QCOMPARE(a.msgs.textos(), mensagens);
        QCOMPARE(a.msgs.inesperadas, 0);
    }

    void digitoErradoRecusado()
    {
        Ambiente a;
        Cenario c(a, false, TipoDocumento::DSI);
        QString errado = numeroDSI();
        errado[9] = QChar('0' + (errado.at(9).digitValue() + 1) % 10);
        a.msgs.responde(Msg::OK);
        c.digita(Papel::Numero, errado);
        QCOMPARE(a.msgs.textos(), QStringList{t("Número da DSI inválido.")});
        QCOMPARE(a.msgs.inesperadas, 0);
    }

    void partesAoSair_data()
    {
        QTest::addColumn<bool>("individual");
        QTest::addColumn<int>("papel");
        QTest::addColumn<QString>("valor");
        QTest::addColumn<QString>("mensagem");
        QTest::addColumn<QString>("resultado");
        const int ano = int(Papel::Ano), orgao = int(Papel::Orgao), seq = int(Papel::Sequencial), bem = int(Papel::NumeroBem);
        QTest::newRow("mensal, ano zero passa") << false << ano << "00" << QString() << "00";
        QTest::newRow("mensal, ano de um dígito") << false << ano << "9" << t("Campo inválido.") << "9";
        QTest::newRow("mensal, órgão zero") << false << orgao << "0000000" << t("O campo orgão não pode ser igual a zero.") << "0000000";
        QTest::newRow("mensal, órgão curto") << false << orgao << "12" << t("Campo inválido.") << "12";
        QTest::newRow("mensal, seqüencial zero") << false << seq << "000000" << t("O campo seqüencial não pode ser igual a zeros.") << "000000";
        QTest::newRow("mensal, seqüencial curto") << false << seq << "12" << t("Informe número de 6 dígitos.") << "12";
        QTest::newRow("mensal, bem zero") << false << bem << "0" << t("O número do bem não pode ser zero.") << "0";
        QTest::newRow("mensal, bem vira 000") << false << bem << "7" << QString() << "007";
        QTest::newRow("individual, ano 97 passa") << true << ano << "97" << QString() << "97";
        QTest::newRow("individual, ano 99 passa") << true << ano << "99" << QString() << "99";
        QTest::newRow("individual, ano 49 fora") << true << ano << "49" << t("Campo inválido.") << "49";
        QTest::newRow("individual, órgão zero") << true << orgao << "0000000" << t("Campo deve ser maior que zero.") << "0000000";
        QTest::newRow("individual, seqüencial curto") << true << seq << "123" << t("Informe número de 6 dígitos.") << "123";
        QTest::newRow("individual, bem zero") << true << bem << "000" << t("Campo deve ser maior que zero.") << "000";
        QTest::newRow("individual, bem vira 000") << true << bem << "12" << QString() << "012";
    }
    void partesAoSair()
    {
        QFETCH(bool, individual);
        QFETCH(int, papel);
        QFETCH(QString, valor);
        QFETCH(QString, mensagem);
        QFETCH(QString, resultado);
        Ambiente a;
        Cenario c(a, individual, TipoDocumento::DSI);
        c.clica(Papel::Nao);
        const Papel p = static_cast<Papel>(papel);
        c.digitaESai(p, valor, mensagem);
        QCOMPARE(c.texto(p), resultado);
        QCOMPARE(a.msgs.inesperadas, 0);
    }

    void validacaoNaOrdem_data() { editores(); }
    void validacaoNaOrdem()
    {
        QFETCH(bool, individual);
        Ambiente a;
        Cenario c(a, individual, TipoDocumento::DSI);
        const QStringList mensagens{t("O campo número da DSI deve ser preenchido."), t("DSI incorreta"),
                                    t("Este campo não pode ser nulo."), t("Este campo não pode ser nulo"),
                                    t("O campo moeda não pode ser nulo."), t("O campo valor unitário não pode ser nulo.")};
        const QList<std::function<void()>> corrige{
            [&] { qobject_cast<MaskedField*>(c.quadro()->campo(Papel::Numero))->setDigits(t("0912345")); },
            [&] { qobject_cast<MaskedField*>(c.quadro()->campo(Papel::Numero))->setDigits(numeroDSI()); },
            [&] { qobject_cast<QLineEdit*>(c.quadro()->campo(Papel::NumeroBem))->setText(t("001")); },
            [&] {
                c.digita(Papel::Quantidade, t("3"));
                c.clica(Papel::Suspensao);
            },
            [&] { c.digita(Papel::Moeda0, t("220")); },
            [&] { c.digita(Papel::Valor0, t("1")); },
        };
        // The individual editor refuses a short number as well when Incluir takes the focus from it; the monthly one
        // runs only the check digit there, which these seven digits pass.
        QList<QStringList> passos;
        for (int i = 0; i < mensagens.size(); ++i)
            passos << (i == 1 && individual ? QStringList{t("Número deve ter 10 dígitos."), mensagens.at(i)}
                                            : QStringList{mensagens.at(i)});
        c.validaNaOrdem(passos, corrige);
        QCOMPARE(a.msgs.inesperadas, 0);
    }

    // A number of zeros is refused as it is typed and as it is left, but stays in the field: Incluir then refuses it
    // with the validation's own words.
    void numeroDeZerosRecusadoAoIncluir_data() { editores(); }
    void numeroDeZerosRecusadoAoIncluir()
    {
        QFETCH(bool, individual);
        Ambiente a;
        Cenario c(a, individual, TipoDocumento::DSI);
        c.digita(Papel::NumeroBem, t("1"));
        c.digita(Papel::Quantidade, t("4"));
        a.msgs.responde(Msg::OK);
        c.digita(Papel::Numero, t("0000000000"));
        a.msgs.responde(Msg::OK).responde(Msg::OK);
        c.incluir();
        const QString invalido = t("Número da DSI inválido.");
        QCOMPARE(a.msgs.textos(), (QStringList{invalido, invalido, t("DSI não pode ser igual a zeros.")}));
        QCOMPARE(BancoTeste::conta(c.tabela()), 0);
        QCOMPARE(a.msgs.inesperadas, 0);
    }

    void antigaGuardaPartesJuntasERecusaARepetida_data()
    {
        editoresCom("mensagem", t("O conjunto Ano/Orgão/Seqüencial/Número do Bem da DSI já foi incluído."),
                    t("DSI já incluída."));
    }
    void antigaGuardaPartesJuntasERecusaARepetida()
    {
        QFETCH(bool, individual);
        QFETCH(QString, mensagem);
        Ambiente a;
        Cenario c(a, individual, TipoDocumento::DSI);
        for (int vez = 0; vez < 2; ++vez) {
            c.clica(Papel::Nao);
            c.digita(Papel::Ano, t("97"));
            c.digita(Papel::Orgao, t("1234567"));
            c.digita(Papel::Sequencial, t("654321"));
            c.digita(Papel::NumeroBem, t("2"));
            c.digita(Papel::Quantidade, t("1"));
            a.sai(c.nome(Papel::Ano));
            if (vez == 1)
                a.msgs.responde(Msg::OK);
            c.incluir();
        }
        QCOMPARE(a.msgs.textos(), QStringList{mensagem});
        QCOMPARE(valorDe(c.tabela(), t("NR_DSI || '|' || NR_DSI_ANTIGA || '|' || NR_BEM")), t("|971234567654321|002"));
        c.escolheLinha(0);
        QVERIFY(qobject_cast<QRadioButton*>(c.quadro()->campo(Papel::Nao))->isChecked());
        QCOMPARE(c.texto(Papel::Sequencial), t("654321"));
        QCOMPARE(a.msgs.inesperadas, 0);
    }
};

QTEST_MAIN(tst_documentoDSI)
#include "tst_documentoDSI.moc"
