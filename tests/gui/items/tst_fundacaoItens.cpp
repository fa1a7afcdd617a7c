// What every item tab shares: the individual editor's invoice head, the item number across modalities, the
// destinations of a monthly item, and the pickers writing into a tab's fields through their caller keys.
#include "ItensTeste.h"

#include "core/store/ItensDeclaracao.h"

using namespace ItensTeste;

class tst_fundacaoItens : public QObject {
    Q_OBJECT
private slots:
    void cabecalhoDaNotaRenovadoAoEntrarNaAba()
    {
        Ambiente a;
        naAba(a, true, 4);
        QCOMPARE(a.campo<QLabel>(QStringLiteral("lblNumero_tab100Nacional_Individual"))->text(), QStringLiteral("123"));
        QCOMPARE(a.campo<QLabel>(QStringLiteral("lblSerie_tab100Nacional_Individual"))->text(), QStringLiteral("A1"));
        QCOMPARE(a.campo<QLabel>(QStringLiteral("lblData_tab100Nacional_Individual"))->text(),
                 QStringLiteral("10/05/2009"));
        a.vaiParaAba(0);
        a.campo<QLineEdit>(QStringLiteral("mskDadosGeraisIndividual(3)"))->setText(QStringLiteral("456"));
        a.vaiParaAba(4);
        QCOMPARE(a.campo<QLabel>(QStringLiteral("lblNumero_tab100Nacional_Individual"))->text(), QStringLiteral("456"));
    }

    void editorMensalSemCabecalhoDeNota()
    {
        Ambiente a;
        naAba(a, false, 4);
        QVERIFY(!a.editor()->findChild<QLabel*>(QStringLiteral("lblNumero_tab100Nacional_Individual")));
    }

    void numeroDeItemVistoEmTodasAsModalidades()
    {
        Ambiente a;
        EditorDeclaracao* e = naAba(a, true, 4);
        const qint64 nfs = e->idNfs();
        QVERIFY(nfs > 0);
        QVERIFY(!ItensDeclaracao::NumeroItemUsado(nfs, QStringLiteral("7")));
        ItensDeclaracao::Insere(QStringLiteral("ITEM_NFS"), QStringLiteral("ID_ITEM"),
                                {{QStringLiteral("ID_NFS"), nfs}, {QStringLiteral("NR_ITEM_NF_SAIDA"), QStringLiteral("7")},
                                 {QStringLiteral("IND_MOD_INTERNACAO"), QStringLiteral("1")}});
        QVERIFY(ItensDeclaracao::NumeroItemUsado(nfs, QStringLiteral("7")));
        QVERIFY(!ItensDeclaracao::NumeroItemUsado(nfs + 1, QStringLiteral("7")));
    }

    void ultimoDestinoLevaOItem()
    {
        Ambiente a;
        EditorDeclaracao* e = naAba(a, false, 2);
        const qint64 item = ItensDeclaracao::Insere(
            QStringLiteral("ITEM_VRT_MEN"), QStringLiteral("ID_ITEM_VRT"),
            {{QStringLiteral("ID_VRT_MICRO"), e->idVrt()}, {QStringLiteral("CD_INT_PRODUTO"), QStringLiteral("P001")},
             {QStringLiteral("IND_MOD_INTERNACAO"), QStringLiteral("2")}});
        QCOMPARE(ItensDeclaracao::ItemMensal(e->idVrt(), QStringLiteral("P001"), QStringLiteral("2")), item);
        QCOMPARE(ItensDeclaracao::ItemMensal(e->idVrt(), QStringLiteral("P001"), QStringLiteral("4")), 0);
        qint64 destinos[2];
        for (int i = 0; i < 2; ++i)
            destinos[i] = ItensDeclaracao::Insere(QStringLiteral("DESTINO_ITEM_VRT_MEN"), QStringLiteral("ID_DEST_PRODUTO"),
                                                  {{QStringLiteral("ID_ITEM_VRT"), item},
                                                   {QStringLiteral("CD_LOCAL_DESTINO"), QString::number(i + 1)}});
        QVERIFY(ItensDeclaracao::LocalNoItem(item, QStringLiteral("2")));
        QVERIFY(!ItensDeclaracao::LocalNoItem(item, QStringLiteral("3")));
        QVERIFY(!ItensDeclaracao::ExcluiDestino(destinos[0], item));
        QCOMPARE(conta(QStringLiteral("ITEM_VRT_MEN")), 1);
        QVERIFY(ItensDeclaracao::ExcluiDestino(destinos[1], item));
        QCOMPARE(conta(QStringLiteral("ITEM_VRT_MEN")), 0);
    }

    void assistenteDeProdutoPreencheCodigoEDescricao()
    {
        Ambiente a;
        naAba(a, false, 4);
        a.digita(QStringLiteral("txtCodProd100N"), QStringLiteral("P00"));
        QCOMPARE(a.campo<QLineEdit>(QStringLiteral("txtDescrProd100N"))->text(), QString());
        QString filtro;
        QTimer::singleShot(50, this, [&] {
            auto* tela = qobject_cast<frmAssistenteCCI*>(QApplication::activeModalWidget());
            QVERIFY(tela);
            filtro = tela->txtCodigo->text();
            ConsultGrid* g = tela->grdAssistenteCCI;
            QTest::mouseDClick(g->viewport(), Qt::LeftButton, {}, g->visualRect(g->model()->index(1, 1)).center());
        });
        a.clica(QStringLiteral("cmdAssistenteCodigoControleInterno_tab100Nacional_Mensal"));
        QCOMPARE(modVRTPLN::ChamadorProduto, QStringLiteral("produto100NacionalMensal"));
        QCOMPARE(filtro, QStringLiteral("P00"));
        QCOMPARE(a.campo<QLineEdit>(QStringLiteral("txtCodProd100N"))->text(), QStringLiteral("P002"));
        QCOMPARE(a.campo<QLineEdit>(QStringLiteral("txtDescrProd100N"))->text(), QStringLiteral("Produto dois"));
    }

    void assistenteDeNcmPreencheCodigoDescricaoEUnidade()
    {
        Ambiente a;
        naAba(a, true, 4);
        a.digita(QStringLiteral("msk100NacionalIndividual(0)"), QStringLiteral("3925"));
        QTimer::singleShot(50, this, [&] {
            auto* tela = qobject_cast<frmAssistNCM*>(QApplication::activeModalWidget());
            QVERIFY(tela);
            ConsultGrid* g = tela->grdAssistNCM;
            int linha = -1;
            for (int i = 0; i < g->dataRowCount(); ++i)
                if (g->cellText(i, 1).remove(QLatin1Char('.')) == Ncm1)
                    linha = i;
            QVERIFY(linha >= 0);
            QTest::mouseDClick(g->viewport(), Qt::LeftButton, {}, g->visualRect(g->model()->index(linha, 1)).center());
        });
        a.clica(QStringLiteral("cmdAssistenteNCM_tab100Nacional_Individual"));
        QCOMPARE(modVRTPLN::ChamadorNCM, QStringLiteral("produto100Nacional"));
        QCOMPARE(a.campo<QLineEdit>(QStringLiteral("msk100NacionalIndividual(0)"))->text(), QStringLiteral("3925.20.00"));
        QVERIFY(a.campo<QLineEdit>(QStringLiteral("txt100NacionalIndividual(4)"))->text().startsWith(QStringLiteral("Portas")));
        QCOMPARE(a.campo<QLineEdit>(QStringLiteral("txtdisplay100"))->text(), UnidadeEst);
    }
};

QTEST_MAIN(tst_fundacaoItens)
#include "tst_fundacaoItens.moc"
