#include "gui/assistants/frmManipulaArquivo.h"

#include "core/file/writing/GravaVrt.h"
#include "core/file/reading/LeArquivoVrt.h"
#include "core/legacy/ImportaBancoAnterior.h"
#include "core/refdata/modImportacao.h"
#include "core/session/MsgBox.h"
#include "gui/screens/Telas.h"
#include "core/session/modVRTPLN.h"
#include "gui/widgets/OkCancelRow.h"
#include "gui/widgets/FolderTreeModel.h"

#include <QApplication>
#include <QCloseEvent>
#include <QComboBox>
#include <QDir>
#include <QFileSystemModel>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QListView>
#include <QMdiSubWindow>
#include <QProgressBar>
#include <QPushButton>
#include <QStorageInfo>
#include <QTimer>
#include <QTreeView>
#include <QVBoxLayout>

using modVRTPLN::ArquivoImportaTabela;

namespace {

const QString TituloTransmissao = QStringLiteral("Gravar para Transmissão");
const QString TituloBackup = QStringLiteral("Gravar Backup");
const QString TituloImportarVrt = QStringLiteral("Importar VRT");
const QString TituloRestaurar = QStringLiteral("Restaurar Backup");
const QString TituloBancoAnterior = QStringLiteral("Importar Banco de Dados da Versão 1.0");
const QStringList TitulosTabelas = {QStringLiteral("Importar Moeda"), QStringLiteral("Importar NCM"),
                                    QStringLiteral("Importar Produto"), QStringLiteral("Importar UF"),
                                    QStringLiteral("Importar Unidade de Medida Comercial")};

// A drive is usable when its root exists and can be listed.
bool unidadePronta(const QString& raiz)
{
    const QDir dir(raiz);
    if (!dir.exists() || !dir.isReadable())
        return false;
    const QStorageInfo info(raiz);
    return info.isValid() && info.isReady();
}

}  // namespace

frmManipulaArquivo::frmManipulaArquivo(QWidget* pai) : TelaFilha(pai)
{
    setObjectName(QStringLiteral("frmManipulaArquivo"));
    m_modoPasta = !IdVrtEscolhida.isEmpty();
    montaTela();
    carregaUnidades();
}

void frmManipulaArquivo::montaTela()
{
    auto* principal = new QVBoxLayout(this);
    auto* quadros = new QHBoxLayout;

    fraPasta = new QGroupBox(this);
    fraPasta->setObjectName(QStringLiteral("fraPasta"));
    auto* pasta = new QVBoxLayout(fraPasta);
    Label1 = new QLabel(m_modoPasta ? QStringLiteral("Selecione unidade e pasta de destino")
                                    : QStringLiteral("Selecione unidade e pasta de origem."),
                        fraPasta);
    Label1->setObjectName(QStringLiteral("Label1"));
    Drive1 = new QComboBox(fraPasta);
    Drive1->setObjectName(QStringLiteral("Drive1"));
    Dir1 = new QTreeView(fraPasta);
    Dir1->setObjectName(QStringLiteral("Dir1"));
    m_pastas = new FolderTreeModel(this);
    Dir1->setModel(m_pastas);
    Dir1->header()->hide();
    Dir1->setMinimumSize(300, 260);
    pasta->addWidget(Label1);
    pasta->addWidget(Drive1);
    pasta->addWidget(Dir1, 1);
    quadros->addWidget(fraPasta, 1);

    fraArquivo = new QGroupBox(this);
    fraArquivo->setObjectName(QStringLiteral("fraArquivo"));
    auto* arquivo = new QVBoxLayout(fraArquivo);
    Label2 = new QLabel(QStringLiteral("Selecione o arquivo para importação."), fraArquivo);
    Label2->setObjectName(QStringLiteral("Label2"));
    File1 = new QListView(fraArquivo);
    File1->setObjectName(QStringLiteral("File1"));
    m_arquivos = new QFileSystemModel(this);
    m_arquivos->setFilter(QDir::Files | QDir::NoDotAndDotDot);
    m_arquivos->setReadOnly(true);
    File1->setModel(m_arquivos);
    File1->setMinimumSize(280, 260);
    arquivo->addWidget(Label2);
    arquivo->addWidget(File1, 1);
    quadros->addWidget(fraArquivo, 1);
    principal->addLayout(quadros, 1);

    ProgBarCopia = new QProgressBar(this);
    ProgBarCopia->setObjectName(QStringLiteral("ProgBarCopia"));
    ProgBarCopia->setRange(0, 100);
    ProgBarCopia->setValue(0);
    ProgBarCopia->setTextVisible(false);
    // Out of view while nothing runs: an empty bar under the lists looks like a path field.
    ProgBarCopia->setVisible(false);
    lblCopiaAnd = new QLabel(QStringLiteral("Em andamento... AGUARDE"), this);
    lblCopiaAnd->setObjectName(QStringLiteral("lblCopiaAnd"));
    lblCopiaAnd->setVisible(false);
    principal->addWidget(ProgBarCopia);
    principal->addWidget(lblCopiaAnd);

    principal->addLayout(okCancelRow(this, cmdOk, cmdCancela));

    // In folder mode the file list is out of view and the screen shrinks to what is left.
    if (m_modoPasta)
        fraArquivo->hide();
    // A double click or Enter on a file works as Ok; Enter elsewhere as Ok, Escape as Cancela.
    connect(File1, &QListView::activated, this, [this](const QModelIndex& atual) {
        if (!atual.isValid())
            return;
        File1_Click(m_arquivos->fileName(atual));
        cmdOk_Click();
    });
    teclasOkCancela(this, cmdOk, cmdCancela);
    setProperty("paginaAjuda", ArquivoImportaTabela == QLatin1String("SIM") ? QStringLiteral("tabelas.html")
                                                                             : QStringLiteral("arquivos.html"));

    connect(Drive1, &QComboBox::currentIndexChanged, this, &frmManipulaArquivo::Drive1_Change);
    connect(Dir1->selectionModel(), &QItemSelectionModel::currentChanged, this,
            [this](const QModelIndex& atual) {
                if (atual.isValid())
                    Dir1_Change(m_pastas->filePath(atual));
            });
    auto clique = [this](const QModelIndex& atual) {
        if (atual.isValid())
            File1_Click(m_arquivos->fileName(atual));
    };
    connect(File1, &QListView::clicked, this, clique);
    connect(File1->selectionModel(), &QItemSelectionModel::currentChanged, this, clique);
    connect(cmdOk, &QPushButton::clicked, this, &frmManipulaArquivo::cmdOk_Click);
    connect(cmdCancela, &QPushButton::clicked, this, &frmManipulaArquivo::cmdCancela_Click);
    resize(m_modoPasta ? QSize(380, 400) : QSize(700, 440));
}

void frmManipulaArquivo::carregaUnidades()
{
    const QString programa = QDir::cleanPath(
        modVRTPLN::CaminhoAplicacao.isEmpty() ? QDir::currentPath() : modVRTPLN::CaminhoAplicacao);
    const QList<Lugar> lista = Lugares();
    QString lugarPrograma = QStringLiteral("/");
    {
        const QSignalBlocker bloqueio(Drive1);
        for (const Lugar& l : lista) {
            Drive1->addItem(l.nome.isEmpty() ? l.raiz : QStringLiteral("%1  [%2]").arg(l.raiz, l.nome), l.raiz);
            if (dentroDe(programa, l.raiz) && l.raiz.size() > lugarPrograma.size())
                lugarPrograma = l.raiz;
        }
        m_unidadeAnterior = Drive1->findData(lugarPrograma);
        Drive1->setCurrentIndex(m_unidadeAnterior);
    }
    // The tree starts at the program's folder, within its place, read at once so that it opens in view.
    m_pastas->setRoot(lugarPrograma, Drive1->currentText());
    selecionaPasta(programa);
}

QList<frmManipulaArquivo::Lugar> frmManipulaArquivo::Lugares()
{
    QList<Lugar> lista{{QDir::cleanPath(QDir::homePath()), QStringLiteral("Pasta pessoal")}};
    // Removable and mounted media; the system's own mount points stay out.
    QStringList midias;
    for (const QStorageInfo& v : QStorageInfo::mountedVolumes()) {
        const QString raiz = QDir::cleanPath(v.rootPath());
        for (const char* base : {"/media/", "/run/media/", "/mnt/"})
            if (raiz.startsWith(QLatin1String(base)) && v.isValid() && v.isReady())
                midias << raiz;
    }
    midias.sort();
    midias.removeDuplicates();
    for (const QString& m : std::as_const(midias))
        lista.append({m, QStorageInfo(m).displayName() == m ? QString() : QStorageInfo(m).displayName()});
    lista.append({QStringLiteral("/"), QString()});
    return lista;
}

bool frmManipulaArquivo::dentroDe(const QString& pasta, const QString& raiz)
{
    return pasta == raiz || pasta.startsWith(raiz.endsWith(QLatin1Char('/')) ? raiz : raiz + QLatin1Char('/'));
}

void frmManipulaArquivo::selecionaPasta(const QString& pasta)
{
    const QModelIndex indice = m_pastas->indexOf(pasta);
    for (QModelIndex acima = indice.parent(); acima.isValid(); acima = acima.parent())
        Dir1->expand(acima);
    Dir1->setCurrentIndex(indice);
    Dir1->scrollTo(indice, QAbstractItemView::PositionAtCenter);
}

QString frmManipulaArquivo::pastaAtual() const
{
    return m_pastas->filePath(Dir1->currentIndex());
}

void frmManipulaArquivo::FuncaoForm(int funcao)
{
    if (funcao == FuncaoArquivo::Importar)
        setWindowTitle(QStringLiteral("Importar"));
}

void frmManipulaArquivo::Drive1_Change(int indice)
{
    const QString raiz = Drive1->itemData(indice).toString();
    if (!unidadePronta(raiz)) {
        // The previous drive and folder stay.
        MsgBox(QStringLiteral("Não há disco nesta unidade!"), Msg::Critical);
        const QSignalBlocker bloqueio(Drive1);
        Drive1->setCurrentIndex(m_unidadeAnterior);
        return;
    }
    m_unidadeAnterior = indice;
    m_pastas->setRoot(raiz, Drive1->itemText(indice));
    selecionaPasta(raiz);
}

void frmManipulaArquivo::Dir1_Change(const QString& pasta)
{
    m_arquivos->setRootPath(pasta);
    File1->setRootIndex(m_arquivos->index(pasta));
}

void frmManipulaArquivo::File1_Click(const QString& nome)
{
    PastaArquivo = pastaAtual();
    NomeArquivo = nome;
}

void frmManipulaArquivo::atualizaLista()
{
    File1->selectionModel()->clearSelection();
    File1->selectionModel()->setCurrentIndex(QModelIndex(), QItemSelectionModel::NoUpdate);
    Dir1_Change(pastaAtual());
}

void frmManipulaArquivo::emAndamento(bool sim)
{
    lblCopiaAnd->setVisible(sim);
    ProgBarCopia->setVisible(sim);
    ProgBarCopia->setValue(0);
    if (sim)
        QApplication::setOverrideCursor(Qt::WaitCursor);
    else
        QApplication::restoreOverrideCursor();
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
}

void frmManipulaArquivo::avanca(int percentual)
{
    ProgBarCopia->setValue(qBound(0, percentual, 100));
    // One thread: the bar is painted by pumping the window's events, never the user's clicks.
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
}

void frmManipulaArquivo::cmdOk_Click()
{
    const QString titulo = windowTitle();
    if (titulo == TituloTransmissao || titulo == TituloBackup) {
        gravaDeclaracoes();
        return;
    }
    if (NomeArquivo.isEmpty()) {
        MsgBox(QStringLiteral("Selecione um arquivo!"), Msg::Critical);
        return;
    }
    if (titulo == TituloRestaurar || titulo == TituloImportarVrt) {
        emAndamento(true);
        LeArquivoVrtEm(PastaArquivo, NomeArquivo,
                       titulo == TituloRestaurar ? ModoLeitura::Restaurar : ModoLeitura::Importar,
                       [this](qint64 lidas, qint64 total) { avanca(total > 0 ? int(lidas * 100 / total) : 0); });
        emAndamento(false);
        NomeArquivo.clear();
        atualizaLista();
    } else if (TitulosTabelas.contains(titulo)) {
        emAndamento(true);
        modImportacao::ImportaTabela(PastaArquivo, NomeArquivo, [this](int p) { avanca(p); });
        emAndamento(false);
        NomeArquivo.clear();
        atualizaLista();
    } else if (titulo == TituloBancoAnterior) {
        if (!BancoAnterior::NomeAceito(NomeArquivo))
            return;
        bool importado = false;
        if (ImportaBancoAnterior) {
            importado = ImportaBancoAnterior(PastaArquivo, NomeArquivo);
        } else {
            emAndamento(true);
            importado = BancoAnterior::ImportaBancoAnterior(PastaArquivo, NomeArquivo, [this](int p) { avanca(p); });
            emAndamento(false);
        }
        if (importado)
            MsgBox(QStringLiteral("Importação realizada com sucesso!"));
    }
}

void frmManipulaArquivo::gravaDeclaracoes()
{
    QApplication::setOverrideCursor(Qt::WaitCursor);
    const QString pasta = pastaAtual() + QLatin1Char('/');
    PastaDestino = pasta;
    const bool backup = windowTitle() == TituloBackup;
    QStringList identificacoes = VrtsSelecionadas;
    if (identificacoes.isEmpty() && !IdVrtEscolhida.isEmpty())
        identificacoes << IdVrtEscolhida;

    // The screen goes and the chooser comes back with the same action, then the files are written.
    if (auto* janela = qobject_cast<QMdiSubWindow*>(parentWidget()))
        janela->close();
    else
        close();
    AbreTelaComFuncao(modVRTPLN::Escolha, backup ? FuncaoEscolha::GravarBackup : FuncaoEscolha::GravarTransmissao);
    if (!identificacoes.isEmpty())
        GravaVrt(identificacoes, pasta, backup ? ModoGravacao::Backup : ModoGravacao::Transmissao);
    IdVrtEscolhida.clear();
    VrtsSelecionadas.clear();
    PastaDestino.clear();
    QApplication::restoreOverrideCursor();
}

void frmManipulaArquivo::cmdCancela_Click()
{
    IdVrtEscolhida.clear();
    VrtsSelecionadas.clear();
    PastaDestino.clear();
    NomeArquivo.clear();
    ArquivoImportaTabela = QStringLiteral("NAO");
    DefinePainelStatus(1, QString());
    if (auto* janela = qobject_cast<QMdiSubWindow*>(parentWidget()))
        janela->close();
    else
        close();
}

void frmManipulaArquivo::closeEvent(QCloseEvent* evento)
{
    // Whatever closes the screen, the next file command starts from a clean state: a declaration picked for
    // writing must not put a later import in folder mode.
    IdVrtEscolhida.clear();
    VrtsSelecionadas.clear();
    NomeArquivo.clear();
    evento->accept();
}
