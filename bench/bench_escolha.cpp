// Times the declaration chooser on 5,000 declarations: building the screen with its list, and the reorder by
// the creation date that a click on the column title asks for.
#include "gui/assistants/frmAssistenteVRT.h"
#include "core/session/MsgBox.h"
#include "core/session/modVRTPLN.h"
#include "core/store/modBancoDados.h"
#include "gui/widgets/ConsultGrid.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QHeaderView>
#include <QTemporaryDir>
#include <QTest>
#include <cstdio>

namespace {

void insereDeclaracoes(int quantidade)
{
    using namespace modBancoDados;
    Transacao t;
    for (int i = 1; i <= quantidade; ++i) {
        const QString id = QStringLiteral("%1/09").arg(i, 5, 10, QLatin1Char('0'));
        const QString criacao = QStringLiteral("2009-%1-%2").arg(1 + i % 12, 2, 10, QLatin1Char('0'))
                                    .arg(1 + i % 28, 2, 10, QLatin1Char('0'));
        ExecutaSql(QStringLiteral("INSERT INTO VRT (ID_VRT_MICRO, CD_TIPO_VRT, NR_CNPJ_INTERNADOR, "
                                  "DT_REGISTRO_VRT_MICRO, IND_RETIFICACAO, NR_VRT) VALUES (?, '2', ?, ?, 'N', ' ')"),
                   {id, QStringLiteral("%1").arg(11222333000100LL + i, 14, 10, QLatin1Char('0')), criacao});
        ExecutaSql(QStringLiteral("INSERT INTO VRT_MENSAL (ID_VRT_MICRO, DT_REFERENCIA_VRT) VALUES (?, '012009')"),
                   {id});
    }
    t.confirma();
}

}  // namespace

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    InstalaManipuladorMsg(ManipuladorConsole);
    QTemporaryDir pasta;
    modVRTPLN::CaminhoAplicacao = pasta.path();
    modVRTPLN::CaminhoDados = pasta.path();
    const QString arquivo = modVRTPLN::ArquivoBanco();
    QFile::copy(QStringLiteral(VRT_DELIVERED_DB), arquivo);
    QFile(arquivo).setPermissions(QFile::ReadOwner | QFile::WriteOwner);
    modBancoDados::ConectaBanco(arquivo);
    const int quantidade = 5000;
    insereDeclaracoes(quantidade);
    for (int vez = 1; vez <= 3; ++vez) {
        QElapsedTimer relogio;
        relogio.start();
        frmAssistenteVRT tela;
        const double abrir = relogio.nsecsElapsed() / 1e6;
        tela.show();
        QHeaderView* titulo = tela.grdAssistenteVRT->horizontalHeader();
        relogio.restart();
        QTest::mouseClick(titulo->viewport(), Qt::LeftButton, {},
                          QPoint(titulo->sectionViewportPosition(2) + 5, titulo->height() / 2));
        const double ordenar = relogio.nsecsElapsed() / 1e6;
        std::printf("escolha com %d declarações (vez %d): abrir %.1f ms, reordenar pela data %.1f ms (%d linhas)\n",
                    quantidade, vez, abrir, ordenar, tela.grdAssistenteVRT->dataRowCount());
    }
    modBancoDados::DesconectaBanco();
    return 0;
}
