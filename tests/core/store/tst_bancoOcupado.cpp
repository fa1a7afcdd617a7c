// A database that another process holds (SQLite's own lock, not ours) ends the operation with a Portuguese
// message that says so, never the generic "Error #" box, and keeps nothing of the operation.
#include "ArquivoTeste.h"
#include "TestUtil.h"
#include "core/file/reading/LeArquivoVrt.h"

#include <QSqlDatabase>
#include <QSqlQuery>
#include <QtTest>

using namespace ArquivoTeste;

namespace {
QString t(const char* s)
{
    return QString::fromUtf8(s);
}
const QString MensagemOcupado = QStringLiteral(
    "O banco de dados está em uso por outro programa e não pôde ser usado agora.\n"
    "O que estava sendo feito não foi gravado; o que já estava salvo continua no banco.\n"
    "Feche o outro programa e tente de novo.");

// Another connection on the same file that holds it exclusively while it lives.
class OutroPrograma {
public:
    explicit OutroPrograma(const QString& arquivo)
    {
        QSqlDatabase db = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), Nome);
        db.setDatabaseName(arquivo);
        QVERIFY(db.open());
        QSqlQuery q(db);
        QVERIFY(q.exec(QStringLiteral("BEGIN EXCLUSIVE")));
    }
    ~OutroPrograma()
    {
        {
            QSqlDatabase db = QSqlDatabase::database(Nome);
            QSqlQuery(db).exec(QStringLiteral("ROLLBACK"));
            db.close();
        }
        QSqlDatabase::removeDatabase(Nome);
    }

private:
    static inline const QString Nome = QStringLiteral("OutroPrograma");
};
}  // namespace

class TstBancoOcupado : public QObject {
    Q_OBJECT

private slots:
    void escritaComOBancoPresoPorOutro()
    {
        BancoTeste banco;
        MensagensRoteiro msgs;
        msgs.responde(Msg::OK);
        QString fim;
        {
            OutroPrograma outro(banco.arquivo());
            fim = numeroDoFim([] {
                modBancoDados::ExecutaSql(t("INSERT INTO PRODUTO (CD_INT_PRODUTO, NM_INT_PRODUTO) VALUES ('X', 'Y')"));
            });
        }
        QCOMPARE(fim, t("5"));
        QCOMPARE(msgs.textos(), QStringList{MensagemOcupado});
        QCOMPARE(msgs.caixas.at(0).icone(), Msg::Critical);
        QCOMPARE(msgs.caixas.at(0).titulo, TituloPadrao);
        QCOMPARE(BancoTeste::conta(t("PRODUTO"), t("CD_INT_PRODUTO = 'X'")), 0);
    }

    void leituraDeDeclaracaoComOBancoPresoPorOutro()
    {
        BancoTeste banco;
        cadastraNcmsDosRegistros();
        grava(banco.pasta() + t("/arquivo"), bytes(cabecalhoMensal() + QStringList{r41(t("P1"), t("Fio"), t("M"))}));
        MensagensRoteiro msgs;
        msgs.responde(Msg::OK);
        QString fim;
        {
            OutroPrograma outro(banco.arquivo());
            fim = numeroDoFim([&] { LeArquivoVrtEm(banco.pasta(), t("arquivo")); });
        }
        QCOMPARE(fim, t("5"));
        QCOMPARE(msgs.textos(), QStringList{MensagemOcupado});
        QCOMPARE(BancoTeste::conta(t("VRT")), 0);
    }
};

QTEST_GUILESS_MAIN(TstBancoOcupado)
#include "tst_bancoOcupado.moc"
