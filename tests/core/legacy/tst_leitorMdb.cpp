// The reader of Access files against files made by Access itself (public reference files, in the refdata folder;
// the test is skipped, status 77, where that folder is absent): a Jet 4 file and a Jet 3 file, their tables, rows
// and values, and a database without the table VRT refused as not the old version's.
#include "TestUtil.h"
#include "core/legacy/ImportaBancoAnterior.h"
#include "core/legacy/LeitorMdb.h"

#include <QDir>
#include <QFile>
#include <QtTest>

namespace {

QString referencia(const QString& nome)
{
    return QDir(QStringLiteral(VRT_REFDATA_DIR)).filePath(nome);
}

const QString Jet4 = QStringLiteral("jackcess_test2V2000_jet4.mdb");
const QString Jet3 = QStringLiteral("nwind.mdb");

}  // namespace

class tst_leitorMdb : public QObject {
    Q_OBJECT
private slots:
    void jet4TabelaEValores()
    {
        LeitorMdb leitor(referencia(Jet4));
        QVERIFY(leitor.aberto());
        QCOMPARE(leitor.tabelas(), QStringList{"MSP_PROJECTS"});
        const auto t = leitor.le("msp_projects");  // names are found whatever their case
        QVERIFY(t);
        QCOMPARE(t->linhas.size(), 1);
        const QVariantList& l = t->linhas.first();
        QCOMPARE(l.at(t->indice("PROJ_ID")), QVariant(qint64(1)));
        QCOMPARE(l.at(t->indice("PROJ_NAME")).toString(), "Project1");
        QVERIFY(l.at(t->indice("PROJ_PROP_AUTHOR")).toString().startsWith("Jon Iles this is a a vawesrasoih"));
        QCOMPARE(l.at(t->indice("PROJ_INFO_CURRENT_DATE")).toString(), "2006-02-03");
        QCOMPARE(t->indice("NAO_EXISTE"), -1);
    }

    void jet3TabelasEContagens()
    {
        LeitorMdb leitor(referencia(Jet3));
        QVERIFY(leitor.aberto());
        QStringList tabelas = leitor.tabelas();
        tabelas.sort();
        QCOMPARE(tabelas, (QStringList{"Categories", "Customers", "Employees", "Order Details", "Orders", "Products",
                                       "Shippers", "Suppliers"}));
        QCOMPARE(leitor.le("Customers")->linhas.size(), 91);
        QCOMPARE(leitor.le("Orders")->linhas.size(), 830);
        QCOMPARE(leitor.le("Order Details")->linhas.size(), 2155);
        const auto clientes = leitor.le("Customers");
        QCOMPARE(clientes->linhas.first().at(clientes->indice("CompanyName")).toString(), "Alfreds Futterkiste");
        const auto pedidos = leitor.le("Orders");
        QCOMPARE(pedidos->linhas.first().at(pedidos->indice("OrderID")), QVariant(qint64(10330)));
        QCOMPARE(pedidos->linhas.first().at(pedidos->indice("OrderDate")).toString(), "1994-11-16");
    }

    void tabelaAusente()
    {
        LeitorMdb leitor(referencia(Jet3));
        QVERIFY(!leitor.le("VRT"));
        QCOMPARE(leitor.erro(), "A tabela VRT não existe ou não pode ser lida.");
    }

    void arquivoAusente()
    {
        LeitorMdb leitor(referencia("nao_existe.mdb"));
        QVERIFY(!leitor.aberto());
        QVERIFY(!leitor.le("VRT"));
    }

    // A real Access database of another program, under the old database's name: not the old version's.
    void bancoSemTabelaVrtNaoPertenceAVersao1()
    {
        BancoTeste banco;
        const int antes = BancoTeste::conta("MOEDA");
        QTemporaryDir pasta;
        QVERIFY(QFile::copy(referencia(Jet3), pasta.filePath("pln_vrt.mdb")));
        MensagensRoteiro msgs;
        msgs.responde(Msg::OK);
        QVERIFY(!BancoAnterior::ImportaBancoAnterior(pasta.path(), "pln_vrt.mdb"));
        QCOMPARE(msgs.textos(), QStringList{"O banco de dados apontado não pertence a versão 1.0 do sistema!"});
        QCOMPARE(BancoTeste::conta("MOEDA"), antes);
    }
};

int main(int argc, char** argv)
{
    if (!QFile::exists(referencia(Jet4)) || !QFile::exists(referencia(Jet3)))
        return 77;
    QCoreApplication app(argc, argv);
    tst_leitorMdb t;
    return QTest::qExec(&t, argc, argv);
}
#include "tst_leitorMdb.moc"
