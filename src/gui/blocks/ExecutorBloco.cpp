#include "gui/blocks/ExecutorBloco.h"

#include "core/rules/FormatoNumero.h"
#include "core/session/MsgBox.h"
#include "core/session/modVRTPLN.h"
#include "gui/widgets/ConsultGrid.h"
#include "gui/widgets/DigitField.h"
#include "gui/widgets/MaskedField.h"
#include "gui/widgets/NcmField.h"
#include "gui/widgets/ProductCodeField.h"
#include "gui/blocks/QuatroBotoes.h"
#include "gui/widgets/TextField.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QHBoxLayout>
#include <QVBoxLayout>

ListaBloco::ListaBloco(const QString& nome, QWidget* parent) : QComboBox(parent)
{
    setObjectName(nome);
}

void ListaBloco::showPopup()
{
    emit abrindo();
    QComboBox::showPopup();
}

void ListaBloco::focusInEvent(QFocusEvent* event)
{
    QComboBox::focusInEvent(event);
    emit abrindo();
}

ExecutorBloco::ExecutorBloco(DescricaoBloco descricao, std::function<QVariant()> pai, QObject* dono)
    : QObject(dono), m_d(std::move(descricao)), m_pai(std::move(pai))
{
}

QWidget* ExecutorBloco::criaCampo(const CampoBloco& c, QWidget* pai)
{
    QWidget* w = nullptr;
    switch (c.tipo) {
    case CampoBloco::Lista: {
        auto* lista = new ListaBloco(c.nome, pai);
        connect(lista, &ListaBloco::abrindo, this, [this, n = c.nome] { recarregaLista(n); });
        connect(lista, &QComboBox::activated, this, [this, n = c.nome] { escolhida(n); });
        w = lista;
        break;
    }
    case CampoBloco::Decimal: {
        auto* d = new DecimalField(c.familia, c.nome, c.msgZero, pai);
        if (!c.formato.isEmpty())
            d->setDisplayFormat(c.formato);
        w = d;
        break;
    }
    case CampoBloco::Digitos: {
        auto* d = new DigitField(c.nome, c.largura, pai);
        if (!c.msgZero.isEmpty())
            d->setZeroMessage(c.msgZero);
        w = d;
        break;
    }
    case CampoBloco::Ncm:
        w = new NcmField(c.nome, pai);
        break;
    case CampoBloco::Produto:
        w = new ProductCodeField(c.nome, pai);
        break;
    case CampoBloco::Mascara:
        w = new MaskedField(c.formato, c.nome, pai);
        break;
    case CampoBloco::Texto:
        w = new TextField(c.nome, c.largura, pai);
        break;
    case CampoBloco::Marca:
        w = new QCheckBox(pai);
        w->setObjectName(c.nome);
        break;
    }
    if (c.larguraTela > 0)
        w->setMinimumWidth(c.larguraTela);
    if (c.somenteLeitura)
        w->setEnabled(false);
    return w;
}

void ExecutorBloco::constroi(QWidget* area)
{
    auto* coluna = new QVBoxLayout(area);
    QWidget* dosCampos = area;
    if (!m_d.tituloCampos.isEmpty()) {
        dosCampos = new QGroupBox(m_d.tituloCampos, area);
        coluna->addWidget(dosCampos);
    }
    auto* linha = new QGridLayout;
    QHash<int, int> proxima;  // the next column of each row of fields
    for (const CampoBloco& c : std::as_const(m_d.campos)) {
        if (m_campos.contains(c.nome))
            continue;
        QWidget* w = criaCampo(c, dosCampos);
        m_campos.insert(c.nome, w);
        auto* rotulo = new QLabel(c.rotulo, dosCampos);
        rotulo->setBuddy(w);
        const int i = proxima.value(c.linha);
        proxima.insert(c.linha, i + 1);
        linha->addWidget(rotulo, 2 * c.linha, i);
        if (c.botao.isEmpty()) {
            linha->addWidget(w, 2 * c.linha + 1, i);
        } else {
            auto* par = new QHBoxLayout;
            par->setSpacing(2);
            par->addWidget(w, 1);
            auto* botao = new QPushButton(QStringLiteral("..."), dosCampos);
            botao->setObjectName(c.botao);
            botao->setFixedWidth(botao->fontMetrics().horizontalAdvance(QStringLiteral("...")) + 16);
            m_botoesEscolha.insert(c.botao, botao);
            connect(botao, &QPushButton::clicked, this, [this, botao, n = c.nome] {
                for (const CampoBloco& campo : std::as_const(m_d.campos))
                    if (campo.nome == n && m_d.escolhe)
                        m_d.escolhe(campo, *this);
                botao->setFocus(Qt::OtherFocusReason);
            });
            par->addWidget(botao);
            linha->addLayout(par, 2 * c.linha + 1, i);
        }
        linha->setColumnStretch(i, c.tipo == CampoBloco::Lista ? 2 : 1);
    }
    if (dosCampos == area) {
        coluna->addLayout(linha);
        for (QWidget* q : std::as_const(m_quadrosAdotados))
            coluna->addWidget(q);
    } else {
        auto* dentroDosCampos = new QVBoxLayout(dosCampos);
        dentroDosCampos->addLayout(linha);
        for (QWidget* q : std::as_const(m_quadrosAdotados)) {
            q->setParent(dosCampos);
            dentroDosCampos->addWidget(q);
        }
    }
    ligaAlvos();
    const bool botoesProprios = !m_botoes;
    if (botoesProprios) {
        m_botoes = new QuatroBotoes(m_d.padraoBotoes, area);
        coluna->addWidget(m_botoes);
    }
    m_quadro = new QGroupBox(m_d.tituloGrade, area);
    auto* dentro = new QVBoxLayout(m_quadro);
    m_grade = new ConsultGrid(m_quadro);
    m_grade->setObjectName(m_d.nomeGrade);
    m_grade->setClickNeedsRowChange(true);
    // Column 0 stands empty, as in every consult grid of the editors.
    QList<ConsultGrid::Column> colunas{{QString(), 20}};
    for (const ColunaGrade& g : m_d.colunasGrade)
        colunas.append({g.titulo, g.largura, ConsultGrid::alignmentFor(g.formato, g.coluna), g.maisLarga});
    m_grade->setColumns(colunas);
    // The grid takes the height the screen leaves it, a few rows at least, so that a tab of several blocks still
    // opens inside the main window.
    m_grade->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Ignored);
    m_grade->setMinimumHeight(m_grade->verticalHeader()->defaultSectionSize() * 3 + m_grade->horizontalHeader()->sizeHint().height() + 4);
    dentro->addWidget(m_grade);
    coluna->addWidget(m_quadro, 1);

    connect(m_grade, &ConsultGrid::rowChosen, this, &ExecutorBloco::escolheLinha);
    if (!botoesProprios)
        return;
    connect(m_botoes->cmdIncluir, &QPushButton::clicked, this, &ExecutorBloco::incluir);
    connect(m_botoes->cmdAlterar, &QPushButton::clicked, this, &ExecutorBloco::alterar);
    connect(m_botoes->cmdExcluir, &QPushButton::clicked, this, &ExecutorBloco::excluir);
    connect(m_botoes->cmdLimpar, &QPushButton::clicked, this, &ExecutorBloco::limpar);
}

QStringList ExecutorBloco::colunasConsulta() const
{
    QStringList c;
    for (const ColunaGrade& g : m_d.colunasGrade)
        c << g.coluna;
    return c;
}

int ExecutorBloco::colunaDaGrade(const QString& coluna) const
{
    for (int i = 0; i < m_d.colunasGrade.size(); ++i)
        if (m_d.colunasGrade.at(i).coluna.compare(coluna, Qt::CaseInsensitive) == 0)
            return i + 1;
    return -1;
}

QList<QStringList> ExecutorBloco::linhasDoBanco() const
{
    const QVariant pai = m_pai();
    if (pai.toString().isEmpty() || pai.toString() == QLatin1String("0"))
        return {};
    return m_d.linhas ? m_d.linhas(pai) : Bloco::Linhas(m_d.dados, pai, colunasConsulta());
}

QStringList ExecutorBloco::linhaDaGrade(const QStringList& doBanco) const
{
    QStringList l;
    l.reserve(doBanco.size() + 1);
    l << QString();
    for (int i = 0; i < doBanco.size(); ++i) {
        const ColunaGrade* g = i < m_d.colunasGrade.size() ? &m_d.colunasGrade.at(i) : nullptr;
        if (g && g->exibe)
            l << g->exibe(doBanco.at(i));
        else if (g && !g->formato.isEmpty())
            l << Funcoes::Formata(doBanco.at(i), g->formato);
        else
            l << doBanco.at(i);
    }
    return l;
}

void ExecutorBloco::preencheGrade()
{
    m_marca = ComandoSqlite::marcaEscrita();
    m_paiLido = m_pai();
    m_lidas = linhasDoBanco();
    QList<QStringList> linhas;
    linhas.reserve(m_lidas.size());
    for (const QStringList& l : std::as_const(m_lidas))
        linhas << linhaDaGrade(l);
    m_grade->setRows(linhas);
    m_grade->clearHighlight();
}

bool ExecutorBloco::gradeEmDia() const
{
    return !m_grade->fillPending() && m_marca.alteracoes >= 0 && m_marca == ComandoSqlite::marcaEscrita()
           && m_paiLido == m_pai();
}

void ExecutorBloco::carrega()
{
    semEscolha();
    if (!gradeEmDia()) {
        m_grade->fillWhenNeeded([this] { preencheGrade(); });
        return;
    }
    m_grade->makeFirstCurrent();
    m_grade->clearHighlight();
    m_grade->scrollToTop();
}

// The first row is current, for the cursor keys, but nothing is chosen: with Alterar and Excluir off no row may
// look chosen either.
void ExecutorBloco::semEscolha()
{
    m_grade->clearHighlight();
    m_chave.clear();
    m_linha = -1;
    m_botoes->habilitaSelecao(false);
}

// After a write the rows are read again, but only those that differ from the rows read before are formatted and
// put in, replaced or taken out, each at its place: the grid ends as a load leaves it, without filling thousands
// of rows again. A grid whose fill is still pending reads the rows when it fills.
void ExecutorBloco::atualizaGrade()
{
    if (m_grade->fillPending()) {
        semEscolha();
        return;
    }
    const MarcaEscrita marca = ComandoSqlite::marcaEscrita();
    const QList<QStringList> novas = linhasDoBanco();
    const int antigas = int(m_lidas.size());
    const int total = int(novas.size());
    int inicio = 0;
    while (inicio < antigas && inicio < total && m_lidas.at(inicio) == novas.at(inicio))
        ++inicio;
    int fim = 0;
    while (fim < antigas - inicio && fim < total - inicio && m_lidas.at(antigas - 1 - fim) == novas.at(total - 1 - fim))
        ++fim;
    const int saem = antigas - inicio - fim;
    const int entram = total - inicio - fim;
    const int trocadas = qMin(saem, entram);
    for (int i = 0; i < trocadas; ++i)
        m_grade->replaceRow(inicio + i, linhaDaGrade(novas.at(inicio + i)));
    for (int i = trocadas; i < saem; ++i)
        m_grade->removeRowAt(inicio + trocadas);
    for (int i = trocadas; i < entram; ++i)
        m_grade->insertRowAt(inicio + i, linhaDaGrade(novas.at(inicio + i)));
    m_lidas = novas;
    m_marca = marca;
    m_paiLido = m_pai();
    m_grade->makeFirstCurrent();
    semEscolha();
}

void ExecutorBloco::esqueceEscolha()
{
    m_chave.clear();
    m_grade->clearHighlight();
}

bool ExecutorBloco::temLinhas() const
{
    return m_grade->dataRowCount() > 0;
}

void ExecutorBloco::limpa()
{
    for (const CampoBloco& c : m_d.campos) {
        QWidget* w = m_campos.value(c.nome);
        if (auto* lista = qobject_cast<QComboBox*>(w))
            lista->setCurrentIndex(-1);
        else if (auto* marca = qobject_cast<QCheckBox*>(w))
            marca->setChecked(false);
        else if (auto* edit = qobject_cast<QLineEdit*>(w))
            edit->clear();
    }
    if (m_d.aoLimpar)
        m_d.aoLimpar(*this);
}

void ExecutorBloco::recarregaLista(const QString& nome)
{
    auto* lista = qobject_cast<QComboBox*>(m_campos.value(nome));
    if (!lista || !m_d.opcoes)
        return;
    const QVariant escolha = lista->currentIndex() >= 0 ? lista->currentData() : QVariant();
    const QList<OpcaoLista> opcoes = m_d.opcoes(nome, *this);
    QSignalBlocker bloqueio(lista);
    lista->clear();
    for (const OpcaoLista& o : opcoes)
        lista->addItem(o.texto, o.dado);
    lista->setCurrentIndex(escolha.isValid() ? lista->findData(escolha) : -1);
}

void ExecutorBloco::escolhida(const QString& nomeLista)
{
    for (const CampoBloco& c : m_d.campos) {
        if (c.dependeDe != nomeLista)
            continue;
        auto* lista = qobject_cast<QComboBox*>(m_campos.value(c.nome));
        lista->setCurrentIndex(-1);
        recarregaLista(c.nome);
    }
}

void ExecutorBloco::habilitaCampos(bool ligado)
{
    for (const CampoBloco& c : std::as_const(m_d.campos))
        m_campos.value(c.nome)->setEnabled(ligado && !c.somenteLeitura);
    for (QPushButton* b : std::as_const(m_botoesEscolha))
        b->setEnabled(ligado);
}

void ExecutorBloco::ligaAlvos()
{
    auto edicao = [this](const QStringList& alvos, int i) {
        return i < alvos.size() ? qobject_cast<QLineEdit*>(m_campos.value(alvos.at(i))) : nullptr;
    };
    for (const CampoBloco& c : std::as_const(m_d.campos)) {
        QWidget* w = m_campos.value(c.nome);
        if (c.tipo == CampoBloco::Ncm)
            static_cast<NcmField*>(w)->setTargets(edicao(c.alvos, 0), edicao(c.alvos, 1));
        else if (c.tipo == CampoBloco::Produto)
            static_cast<ProductCodeField*>(w)->setDescriptionField(edicao(c.alvos, 0));
    }
    for (const CampoBloco& c : std::as_const(m_d.campos))
        if (c.ajusta)
            c.ajusta(m_campos.value(c.nome), *this);
}

QWidget* ExecutorBloco::controle(const QString& nome) const
{
    if (QWidget* w = m_campos.value(nome))
        return w;
    if (QWidget* w = m_botoesEscolha.value(nome))
        return w;
    for (QPushButton* b : {m_botoes->cmdIncluir, m_botoes->cmdAlterar, m_botoes->cmdExcluir, m_botoes->cmdLimpar})
        if (b->objectName() == nome)
            return b;
    return nullptr;
}

QString ExecutorBloco::valor(const QString& nomeCampo) const
{
    for (const CampoBloco& c : m_d.campos)
        if (c.nome == nomeCampo)
            return valorCampo(c).toString();
    return QString();
}

QString ExecutorBloco::valorEscolhido(const QString& coluna) const
{
    const int i = colunaDaGrade(coluna);
    if (m_linha < 0 || i < 0 || m_linha >= m_grade->dataRowCount())
        return QString();
    return m_grade->cellText(m_linha, i);
}

void ExecutorBloco::preencheCampo(const CampoBloco& c, const QString& valor, const QString& texto)
{
    QWidget* w = m_campos.value(c.nome);
    switch (c.tipo) {
    case CampoBloco::Lista: {
        auto* lista = qobject_cast<QComboBox*>(w);
        recarregaLista(c.nome);
        int i = c.coluna.isEmpty() ? -1 : lista->findData(valor);
        // Without a code the entry is found by its trimmed text.
        for (int k = 0; i < 0 && k < lista->count(); ++k)
            if (lista->itemText(k).trimmed() == texto.trimmed())
                i = k;
        lista->setCurrentIndex(i);
        break;
    }
    case CampoBloco::Decimal:
        static_cast<DecimalField*>(w)->setValue(valor);
        break;
    case CampoBloco::Mascara:
    case CampoBloco::Ncm:
        static_cast<MaskedField*>(w)->setDigits(valor);
        break;
    case CampoBloco::Marca:
        static_cast<QCheckBox*>(w)->setChecked(!valor.isEmpty() && valor != QLatin1String("0"));
        break;
    default:
        static_cast<QLineEdit*>(w)->setText(valor);
        break;
    }
}

void ExecutorBloco::escolheLinha(int linha)
{
    if (linha < 0 || linha >= m_grade->dataRowCount())
        return;
    m_chave.clear();
    m_linha = linha;
    for (const QString& k : m_d.dados.chave)
        m_chave << m_grade->cellText(linha, colunaDaGrade(k));
    for (const CampoBloco& c : m_d.campos) {
        if (colunaDaGrade(c.coluna) < 0)
            continue;
        const QString valor = m_grade->cellText(linha, colunaDaGrade(c.coluna));
        const QString texto = c.colunaTexto.isEmpty() ? valor : m_grade->cellText(linha, colunaDaGrade(c.colunaTexto));
        preencheCampo(c, valor, texto);
    }
    if (m_d.aoEscolher)
        m_d.aoEscolher(*this);
    m_botoes->habilitaSelecao(true);
}

QVariant ExecutorBloco::valorCampo(const CampoBloco& c) const
{
    QWidget* w = m_campos.value(c.nome);
    switch (c.tipo) {
    case CampoBloco::Lista: {
        auto* lista = qobject_cast<QComboBox*>(w);
        return lista->currentIndex() >= 0 ? lista->currentData().toString() : QString();
    }
    case CampoBloco::Decimal:
        return static_cast<DecimalField*>(w)->value();
    case CampoBloco::Mascara:
    case CampoBloco::Ncm:
        return static_cast<MaskedField*>(w)->digits();
    case CampoBloco::Marca:
        return static_cast<QCheckBox*>(w)->isChecked() ? QStringLiteral("1") : QString();
    default:
        return static_cast<QLineEdit*>(w)->text();
    }
}

QVariantMap ExecutorBloco::valoresDosCampos() const
{
    QVariantMap v;
    for (const CampoBloco& c : m_d.campos) {
        if (!c.coluna.isEmpty())
            v.insert(c.coluna, valorCampo(c));
        if (!c.colunaTexto.isEmpty())
            v.insert(c.colunaTexto, qobject_cast<QComboBox*>(m_campos.value(c.nome))->currentText());
    }
    return v;
}

QVariantList ExecutorBloco::chaveDosCampos() const
{
    const QVariantMap v = valoresDosCampos();
    QVariantList chave;
    for (const QString& k : m_d.dados.chave)
        chave << v.value(k);
    return chave;
}

void ExecutorBloco::recusa(const QString& texto, QWidget* foco)
{
    MsgBox(texto, Msg::OKOnly | Msg::Critical);
    emit recusou();
    if (foco && foco->isEnabled())
        foco->setFocus(Qt::OtherFocusReason);
}

bool ExecutorBloco::passaRegras(const QList<RegraBloco>& regras, Operacao op, QWidget* botao)
{
    for (const RegraBloco& r : regras) {
        const QString texto = r.teste(*this, op);
        if (!texto.isEmpty()) {
            recusa(texto, r.foco.isEmpty() ? botao : controle(r.foco));
            return false;
        }
    }
    return true;
}

bool ExecutorBloco::validaCampos()
{
    for (const CampoBloco& c : m_d.campos) {
        if (c.msgVazio.isEmpty())
            continue;
        const QString v = valorCampo(c).toString();
        const bool vazio = v.trimmed().isEmpty() || (c.tipo == CampoBloco::Decimal && Funcoes::EhZero(v));
        if (vazio) {
            recusa(c.msgVazio, m_campos.value(c.nome));
            return false;
        }
    }
    return true;
}

void ExecutorBloco::incluir()
{
    if (!m_d.regras.isEmpty()) {
        if (!passaRegras(m_d.regras, Operacao::Incluir, m_botoes->cmdIncluir))
            return;
        modVRTPLN::AlteracaoPendente = true;
        if (m_d.grava)
            m_d.grava(*this, m_pai(), Operacao::Incluir);
        else
            Bloco::Insere(m_d.dados, m_pai(), valoresDosCampos());
        atualizaGrade();
        limpa();
        if (m_d.depois)
            m_d.depois(*this, Operacao::Incluir);
        return;
    }
    if (!validaCampos())
        return;
    if (Bloco::Existe(m_d.dados, m_pai(), chaveDosCampos())) {
        recusa(m_d.msgDuplicado, m_botoes->cmdIncluir);
        return;
    }
    modVRTPLN::AlteracaoPendente = true;
    Bloco::Insere(m_d.dados, m_pai(), valoresDosCampos());
    atualizaGrade();
    limpa();
}

void ExecutorBloco::alterar()
{
    if (m_chave.isEmpty()) {
        if (!m_d.msgSemSelecao.isEmpty())
            recusa(m_d.msgSemSelecao, m_botoes->cmdAlterar);
        return;
    }
    if (!m_d.regras.isEmpty()) {
        if (!passaRegras(m_d.regras, Operacao::Alterar, m_botoes->cmdAlterar))
            return;
        modVRTPLN::AlteracaoPendente = true;
        if (m_d.grava)
            m_d.grava(*this, m_pai(), Operacao::Alterar);
        else
            Bloco::Altera(m_d.dados, m_pai(), m_chave, valoresDosCampos());
        atualizaGrade();
        limpa();
        if (m_d.depois)
            m_d.depois(*this, Operacao::Alterar);
        return;
    }
    if (!validaCampos())
        return;
    const QVariantList nova = chaveDosCampos();
    QStringList a, b;
    for (const QVariant& v : nova)
        a << v.toString();
    for (const QVariant& v : std::as_const(m_chave))
        b << v.toString();
    // The duplicate test runs only when the key is not the chosen row's own.
    if (a != b && Bloco::Existe(m_d.dados, m_pai(), nova)) {
        recusa(m_d.msgDuplicado, m_botoes->cmdAlterar);
        return;
    }
    modVRTPLN::AlteracaoPendente = true;
    Bloco::Altera(m_d.dados, m_pai(), m_chave, valoresDosCampos());
    atualizaGrade();
    limpa();
}

void ExecutorBloco::excluir()
{
    if (m_chave.isEmpty()) {
        if (!m_d.msgSemSelecao.isEmpty())
            recusa(m_d.msgSemSelecao, m_botoes->cmdExcluir);
        return;
    }
    if (!passaRegras(m_d.regrasExcluir, Operacao::Excluir, m_botoes->cmdExcluir))
        return;
    const QString pergunta = m_d.perguntaExcluir ? m_d.perguntaExcluir(*this) : QStringLiteral("Deseja realmente excluir?");
    if (MsgBox(pergunta, Msg::YesNo | Msg::Information) != Msg::Yes)
        return;
    modVRTPLN::AlteracaoPendente = true;
    if (m_d.apaga)
        m_d.apaga(*this, m_pai());
    else
        Bloco::Exclui(m_d.dados, m_pai(), m_chave);
    limpa();
    atualizaGrade();
}

void ExecutorBloco::limpar()
{
    limpa();
    carrega();
}

void ExecutorBloco::excluiTodos()
{
    if (!temLinhas())
        return;
    Bloco::ExcluiTodos(m_d.dados, m_pai());
    modVRTPLN::AlteracaoPendente = true;
    carrega();
}
