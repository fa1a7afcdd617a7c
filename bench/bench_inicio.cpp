// Times the start of the program up to a shown main window (splash excluded): with the delivered database,
// and with one of about 100 MB of declarations.
#include "gui/shell/Main.h"
#include "gui/shell/frmVRTPLN.h"
#include "core/store/modBancoDados.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>
#include <cstdio>

namespace {

double mediaDoInicio(const QString& pasta, int vezes)
{
    double total = 0;
    for (int i = 0; i < vezes; ++i) {
        QElapsedTimer relogio;
        relogio.start();
        Execucao run = Main(pasta, 0);
        QApplication::processEvents();
        total += relogio.nsecsElapsed() / 1e6;
        if (!run.iniciada())
            std::exit(1);
        run.janela->close();
    }
    return total / vezes;
}

void enche(const QString& arquivo, qint64 bytes)
{
    using namespace modBancoDados;
    ConectaBanco(arquivo);
    int declaracao = 0;
    while (QFileInfo(arquivo).size() < bytes) {
        Transacao t;
        for (int d = 0; d < 20; ++d, ++declaracao) {
            const QString id = QStringLiteral("%1/26").arg(declaracao + 1, 5, 10, QLatin1Char('0'));
            ExecutaSql(QStringLiteral("INSERT INTO VRT (ID_VRT_MICRO, NR_CNPJ_INTERNADOR, CD_TIPO_VRT) VALUES (?, ?, '2')"),
                       {id, QStringLiteral("11222333000181")});
            ExecutaSql(QStringLiteral("INSERT INTO VRT_MENSAL (ID_VRT_MICRO, DT_REFERENCIA_VRT) VALUES (?, '102026')"), {id});
            QSqlQuery item(ConexaoBanco());
            item.prepare(QStringLiteral(
                "INSERT INTO ITEM_VRT_MEN (ID_VRT_MICRO, CD_INT_PRODUTO, NM_INT_PRODUTO, CD_NCM_PRODUTO, "
                "NM_UNID_MED_PROD, NM_UNID_MED_EST, IND_MOD_INTERNACAO, QT_PROD_UNID_PROD, QT_PROD_UNID_EST, "
                "VL_PROD_UNID_PROD) VALUES (?, ?, ?, '84713012', 'UNIDADE', 'UNIDADE', '4', '10,00000', "
                "'10,00000', '1234,5678900')"));
            for (int i = 0; i < 1000; ++i) {
                item.addBindValue(id);
                item.addBindValue(QStringLiteral("P%1").arg(i, 6, 10, QLatin1Char('0')));
                item.addBindValue(QStringLiteral("Produto de teste número %1 com descrição longa").arg(i).left(45));
                if (!item.exec())
                    BDTrataErro(item.lastError());
            }
        }
        t.confirma();
    }
    DesconectaBanco();
}

}  // namespace

int main(int argc, char** argv)
{
    QApplication app(argc, argv);
    QTemporaryDir pasta;
    const QString arquivo = pasta.path() + QStringLiteral("/PLN_VRT_v2.mdb");
    QFile::copy(QStringLiteral(VRT_DELIVERED_DB), arquivo);
    QFile(arquivo).setPermissions(QFile::ReadOwner | QFile::WriteOwner);
    mediaDoInicio(pasta.path(), 1);  // warms the file system cache
    std::printf("início com o banco entregue (%.1f MB): %.1f ms\n", QFileInfo(arquivo).size() / 1e6,
                mediaDoInicio(pasta.path(), 5));
    enche(arquivo, 100LL * 1000 * 1000);
    std::printf("início com um banco de %.1f MB: %.1f ms\n", QFileInfo(arquivo).size() / 1e6,
                mediaDoInicio(pasta.path(), 5));
    return 0;
}
