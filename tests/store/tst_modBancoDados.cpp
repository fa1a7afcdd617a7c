#include "TestUtil.h"

#include "store/modBancoDados.h"

#include <QtTest>

using namespace modBancoDados;

class tst_modBancoDados : public QObject {
    Q_OBJECT
private slots:
    void abreConsultaSemLinhasDaZeroEFechaOResultado();
};

void tst_modBancoDados::abreConsultaSemLinhasDaZeroEFechaOResultado()
{
    BancoTeste banco;
    ExecutaSql(QStringLiteral("CREATE TABLE T (A TEXT)"));
    QSqlQuery rs(ConexaoBanco());
    int quantidade = -1;
    QVERIFY(AbreConsulta(rs, QStringLiteral("SELECT A FROM T WHERE A = ?"), {QStringLiteral("x")}, &quantidade));
    QCOMPARE(quantidade, 0);
    QVERIFY(!rs.isActive());
}

QTEST_GUILESS_MAIN(tst_modBancoDados)
#include "tst_modBancoDados.moc"
