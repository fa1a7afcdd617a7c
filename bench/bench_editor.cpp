// Times the monthly editor on a large declaration: 10,000 national items (two destinations each), a thousand
// items with basic process and a thousand foreign products (two destinations each, a DI on each destination of the
// foreign products), 1,000 products without basic process (two destinations and three inputs each, the inputs
// shared by many products) and a full
// values tab (every modality and type of both tables). Opening runs as the chooser's Abrir does (AbreTela and
// FuncaoForm 2) until the editor is shown; saving is the main window's Salvar after a write. Then it works on
// the tab "100% Nacional" as a user does: shows it, Incluir, Salvar, Alterar, Excluir. Prints the times of
// several runs; never fails on time.
#include "app/RegistroTelas.h"
#include "gui/assistants/frmAssistenteVRT.h"
#include "gui/editor/BlocosValores.h"
#include "core/rules/DigitoVerificador.h"
#include "core/session/MsgBox.h"
#include "gui/shell/frmVRTPLN.h"
#include "core/session/modVRTPLN.h"
#include "core/store/modBancoDados.h"
#include "gui/widgets/ConsultGrid.h"

#include <QAction>
#include <QAbstractButton>
#include <QComboBox>
#include <QLineEdit>
#include <QApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QSqlQuery>
#include <QTabWidget>
#include <QTemporaryDir>
#include <cstdio>

namespace {

using namespace modBancoDados;

const QString Id = QStringLiteral("00001/09");
const int Itens = 10000;
const int ItensSemPPB = 1000;

// Products without basic process, each at two places with three inputs out of 300 codes.
void montaSemPPB()
{
    QSqlQuery item(ConexaoBanco());
    item.prepare(QStringLiteral("INSERT INTO ITEM_VRT_MEN (ID_VRT_MICRO, CD_INT_PRODUTO, NM_INT_PRODUTO, "
                                "CD_NCM_PRODUTO, NM_UNID_MED_PROD, IND_MOD_INTERNACAO) VALUES (?, ?, 'Produto', "
                                "'17019900', 'KG', '3')"));
    QSqlQuery destino(ConexaoBanco());
    destino.prepare(QStringLiteral("INSERT INTO DESTINO_ITEM_VRT_MEN (ID_ITEM_VRT, CD_LOCAL_DESTINO, QT_PROD_LOC_DEST) "
                                   "VALUES (?, ?, '2,00000')"));
    QSqlQuery insumo(ConexaoBanco());
    insumo.prepare(QStringLiteral("INSERT INTO INSUMO_ITEM_VRT_MEN (ID_ITEM_VRT, CD_INT_INSUMO, NM_INT_INSUMO, "
                                  "CD_NCM_INSUMO, QT_INSUMO_POR_PROD, NM_UNID_MED_INSUMO) VALUES (?, ?, 'Insumo', "
                                  "'17019900', '0,50000', 'KG')"));
    for (int i = 0; i < ItensSemPPB; ++i) {
        item.bindValue(0, Id);
        item.bindValue(1, QStringLiteral("S%1").arg(i));
        item.exec();
        const QVariant chave = item.lastInsertId();
        for (const char* local : {"1", "2"}) {
            destino.bindValue(0, chave);
            destino.bindValue(1, QLatin1String(local));
            destino.exec();
        }
        for (int k = 0; k < 3; ++k) {
            insumo.bindValue(0, chave);
            insumo.bindValue(1, QStringLiteral("I%1").arg((i + k * 100) % 300));
            insumo.exec();
        }
    }
    ExecutaSql(QStringLiteral("INSERT INTO NCM_VRT (ID_VRT_MICRO, IN_MOD_INTERNACAO, CD_NCM_PRODUTO, QT_TOTAL_NCM) "
                              "VALUES (?, '3', '17019900', '0')"),
               {Id});
}
// Items of each other modality, each with two destinations; the foreign products with a DI on each destination.
const int ItensOutros = 1000;

// A rectified declaration names the one it rectifies: a number with a good check digit, so that the general data
// let the user leave tab 0.
QString numeroRetificado()
{
    for (int d = 0; d <= 9; ++d)
        if (Funcoes::ValidaDigito(QStringLiteral("091234567%1").arg(d), QStringLiteral("VRT")))
            return QStringLiteral("091234567%1").arg(d);
    return QString();
}

void monta()
{
    Transacao t;
    ExecutaSql(QStringLiteral("INSERT INTO VRT (ID_VRT_MICRO, CD_TIPO_VRT, NR_CNPJ_INTERNADOR, IND_MANDADO_JUDIC, "
                              "NR_VRT, NR_PROC_ADM_FISCAL, IND_RESTITUICAO, IND_RETIFICACAO) VALUES "
                              "(?, '2', '11222333000181', 'S', ?, '', 'N', 'S')"),
               {Id, numeroRetificado()});
    ExecutaSql(QStringLiteral("INSERT INTO VRT_MENSAL (ID_VRT_MICRO, DT_REFERENCIA_VRT) VALUES (?, '052009')"), {Id});
    QSqlQuery item(ConexaoBanco());
    item.prepare(QStringLiteral("INSERT INTO ITEM_VRT_MEN (ID_VRT_MICRO, CD_INT_PRODUTO, NM_INT_PRODUTO, "
                                "CD_NCM_PRODUTO, NM_UNID_MED_PROD, IND_MOD_INTERNACAO, QT_PROD_UNID_EST, "
                                "QT_PROD_UNID_PROD, VL_PROD_UNID_PROD) VALUES (?, ?, 'Produto', '17019900', 'KG', '4', "
                                "'1,00000', '1,00000', '1,0000000')"));
    QSqlQuery destino(ConexaoBanco());
    destino.prepare(QStringLiteral("INSERT INTO DESTINO_ITEM_VRT_MEN (ID_ITEM_VRT, CD_LOCAL_DESTINO, QT_PROD_LOC_DEST) "
                                   "VALUES (?, ?, '1,00000')"));
    QSqlQuery produto(ConexaoBanco());
    produto.prepare(QStringLiteral("INSERT INTO PRODUTO (CD_INT_PRODUTO, NM_INT_PRODUTO) VALUES (?, 'Produto')"));
    for (int i = 0; i < Itens; ++i) {
        produto.bindValue(0, QStringLiteral("P%1").arg(i));
        produto.exec();
        item.bindValue(0, Id);
        item.bindValue(1, QStringLiteral("P%1").arg(i));
        item.exec();
        const QVariant chave = item.lastInsertId();
        for (const char* local : {"1", "2"}) {
            destino.bindValue(0, chave);
            destino.bindValue(1, QLatin1String(local));
            destino.exec();
        }
    }
    QSqlQuery outro(ConexaoBanco());
    outro.prepare(QStringLiteral("INSERT INTO ITEM_VRT_MEN (ID_VRT_MICRO, CD_INT_PRODUTO, NM_INT_PRODUTO, "
                                 "CD_NCM_PRODUTO, NM_UNID_MED_PROD, IND_MOD_INTERNACAO, QT_PROD_UNID_EST, "
                                 "QT_PROD_UNID_PROD) VALUES (?, ?, 'Produto', '17019900', 'KG', ?, '1,00000', "
                                 "'1234,50000')"));
    QSqlQuery ppb(ConexaoBanco());
    ppb.prepare(QStringLiteral("INSERT INTO ITEM_VRT_MEN_PI_COM_PPB (ID_ITEM_VRT, NR_DCRE_DCR, CD_TIPO_COEF_REDUCAO) "
                               "VALUES (?, ?, '2')"));
    QSqlQuery di(ConexaoBanco());
    di.prepare(QStringLiteral("INSERT INTO ITEM_DI_PE_MEN (ID_DEST_PRODUTO, NR_DI, NR_DI_ANTIGA, NR_ADICAO_DI, "
                              "NR_ITEM_ADICAO, IND_DL_288_67, IND_OBSOLE_RESIDUO, QT_PROD_UNID_PROD, "
                              "QT_PROD_UNID_EST, IND_SUSP_PIS_COFINS) VALUES (?, '0912345678', '', '001', '01', 'N', "
                              "'N', '1,00000', '1,00000', 'N')"));
    for (const char* modalidade : {"1", "2"}) {
        for (int i = 0; i < ItensOutros; ++i) {
            outro.bindValue(0, Id);
            outro.bindValue(1, QStringLiteral("M%1P%2").arg(QLatin1String(modalidade)).arg(i));
            outro.bindValue(2, QLatin1String(modalidade));
            outro.exec();
            const QVariant chave = outro.lastInsertId();
            if (modalidade == QLatin1String("2")) {
                ppb.bindValue(0, chave);
                ppb.bindValue(1, QStringLiteral("2009%1").arg(i + 1, 5, 10, QLatin1Char('0')));
                ppb.exec();
            }
            for (const char* local : {"1", "2"}) {
                destino.bindValue(0, chave);
                destino.bindValue(1, QLatin1String(local));
                destino.exec();
                if (modalidade != QLatin1String("1"))
                    continue;
                di.bindValue(0, destino.lastInsertId());
                di.exec();
            }
        }
    }
    montaSemPPB();
    for (int indice = 0; indice < 2; ++indice) {
        const DescricaoBloco d = BlocosValores::Descricao(indice, [] { return true; });
        for (const OpcaoLista& m : BlocosValores::Modalidades(indice, true))
            for (const OpcaoLista& tipo : BlocosValores::Descricoes(indice, m.dado.toString(), true))
                Bloco::Insere(d.dados, Id,
                              {{d.dados.colunas.at(0), m.dado}, {d.dados.colunas.at(1), tipo.dado},
                               {d.dados.colunas.at(2), m.texto}, {d.dados.colunas.at(3), tipo.texto},
                               {d.dados.colunas.at(4), QStringLiteral("1234,56")}});
    }
    t.confirma();
}

double ms(const QElapsedTimer& relogio)
{
    return relogio.nsecsElapsed() / 1e6;
}

void clica(QWidget* tela, const char* botao)
{
    tela->findChild<QAbstractButton*>(QLatin1String(botao))->click();
}

// A row of the grid chosen as the cursor keys choose it.
void escolheLinha(QWidget* tela, int linha)
{
    auto* grade = tela->findChild<ConsultGrid*>(QStringLiteral("grdConsulta100NacionalMensal"));
    grade->setFocus();
    grade->setCurrentCell(linha, 1);
}

// On the tab "100% Nacional" with its 10,000 items, as a user works there: the tab brought up (its grid is read
// then), one Incluir, Salvar, one Alterar and one Excluir of rows in the middle of the grid.
void trabalhaNoNacional(frmVRTPLN& janela)
{
    ExecutaSql(QStringLiteral("INSERT INTO PRODUTO (CD_INT_PRODUTO, NM_INT_PRODUTO) VALUES ('NOVO', 'Produto novo')"));
    frmAssistenteVRT::IdVrtAbrir = Id;
    janela.abreTela(modVRTPLN::Mensal);
    QWidget* tela = janela.telaAberta();
    janela.telaAberta()->FuncaoForm(2);
    QApplication::processEvents();
    QElapsedTimer relogio;
    relogio.start();
    tela->findChild<QTabWidget*>(QStringLiteral("tabDeclaracao"))->setCurrentIndex(4);
    QApplication::processEvents();
    std::printf("aba \"100%% Nacional\" mostrada (a grade lida): %.1f ms\n", ms(relogio));
    auto texto = [tela](const char* nome, const char* valor) {
        tela->findChild<QLineEdit*>(QLatin1String(nome))->setText(QLatin1String(valor));
    };
    texto("mskNumNCM100", "17019900");
    texto("txtCodProd100N", "NOVO");
    texto("msk100N(2)", "1");
    texto("msk100N(0)", "1");
    texto("msk100N(1)", "1");
    auto* unidade = tela->findChild<QComboBox*>(QStringLiteral("cboUnidade100"));
    unidade->showPopup();
    unidade->hidePopup();
    unidade->setCurrentIndex(0);
    relogio.restart();
    clica(tela, "cmdIncluir_tab100Nacional_Mensal");
    const double incluir = ms(relogio);
    const int itens = ValorUnico(QStringLiteral("SELECT COUNT(*) FROM ITEM_VRT_MEN WHERE IND_MOD_INTERNACAO = '4'")).toInt();
    std::printf("Incluir em \"100%% Nacional\" com %d itens na grade: %.1f ms\n", itens - 1, incluir);
    relogio.restart();
    janela.acao(QStringLiteral("mnuDeclaracaoSalvar"))->trigger();
    std::printf("Salvar na aba \"100%% Nacional\" depois do Incluir: %.1f ms\n", ms(relogio));

    escolheLinha(tela, 5000);
    texto("msk100N(0)", "2");
    relogio.restart();
    clica(tela, "cmdAlterar_tab100Nacional_Mensal");
    std::printf("Alterar da linha 5001: %.1f ms\n", ms(relogio));
    escolheLinha(tela, 4000);
    const ManipuladorMsg antes = InstalaManipuladorMsg([](const QString&, int, const QString&) { return int(Msg::Yes); });
    relogio.restart();
    clica(tela, "cmdExcluir_tab100Nacional_Mensal");
    std::printf("Excluir da linha 4001: %.1f ms\n", ms(relogio));
    InstalaManipuladorMsg(antes);
    modVRTPLN::AlteracaoPendente = false;
    janela.fechaTela();
}

}  // namespace

int main(int argc, char** argv)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    // The messages (on stderr) in their place among the figures.
    std::setvbuf(stdout, nullptr, _IONBF, 0);
    InstalaManipuladorMsg(ManipuladorConsole);
    QTemporaryDir pasta;
    modVRTPLN::CaminhoAplicacao = pasta.path();
    modVRTPLN::CaminhoDados = pasta.path();
    QFile::copy(QStringLiteral(VRT_DELIVERED_DB), modVRTPLN::ArquivoBanco());
    QFile(modVRTPLN::ArquivoBanco()).setPermissions(QFile::ReadOwner | QFile::WriteOwner);
    ConectaBanco(modVRTPLN::ArquivoBanco());
    monta();
    const int valores = ValorUnico(QStringLiteral("SELECT (SELECT COUNT(*) FROM VALORES_DIVER_MANDADO) + "
                                                  "(SELECT COUNT(*) FROM VALORES_DIVER_RETIF)")).toInt();
    const QString porModalidade = ValorUnico(QStringLiteral(
        "SELECT GROUP_CONCAT(N, ', ') FROM (SELECT IND_MOD_INTERNACAO || ': ' || COUNT(*) AS N FROM ITEM_VRT_MEN "
        "GROUP BY IND_MOD_INTERNACAO)")).toString();
    const int documentos = ValorUnico(QStringLiteral("SELECT COUNT(*) FROM ITEM_DI_PE_MEN")).toInt();
    std::printf("Declaração mensal com %d itens (por modalidade %s), %d DI e %d valores\n", Itens + 3 * ItensOutros,
                qPrintable(porModalidade), documentos, valores);

    RegistraTelas();
    frmVRTPLN janela;
    janela.carrega();
    janela.show();
    for (int rodada = 1; rodada <= 5; ++rodada) {
        QElapsedTimer relogio;
        relogio.start();
        frmAssistenteVRT::IdVrtAbrir = Id;
        janela.abreTela(modVRTPLN::Mensal);
        janela.telaAberta()->FuncaoForm(2);
        QApplication::processEvents();
        const qint64 abrir = relogio.nsecsElapsed();
        // One write, as an item's Incluir would make, then Salvar.
        ExecutaSql(QStringLiteral("UPDATE VRT SET NR_BANCO_ARREC = ? WHERE ID_VRT_MICRO = ?"),
                   {QString::number(rodada), Id});
        modVRTPLN::AlteracaoPendente = true;
        relogio.restart();
        janela.acao(QStringLiteral("mnuDeclaracaoSalvar"))->trigger();
        const qint64 salvar = relogio.nsecsElapsed();
        std::printf("rodada %d: abrir até a tela mostrada %.1f ms; Salvar %.1f ms\n", rodada, abrir / 1e6,
                    salvar / 1e6);
        janela.fechaTela();
        QApplication::processEvents();
    }
    trabalhaNoNacional(janela);
    return 0;
}
