#include "gui/items/QuadroDocumento.h"

#include "gui/items/NotaAquisicao.h"
#include "gui/widgets/FieldFocus.h"

#include "core/rules/DigitoVerificador.h"
#include "core/rules/Formatadores.h"
#include "core/rules/FormatoNumero.h"
#include "core/session/MsgBox.h"
#include "core/session/modVRTPLN.h"
#include "core/store/Cadastros.h"
#include "gui/assistants/DestinosEscolha.h"
#include "gui/assistants/frmAssistMoeda.h"
#include "gui/blocks/RegraSaida.h"
#include "gui/widgets/ConsultGrid.h"
#include "gui/widgets/DecimalField.h"
#include "gui/widgets/DigitField.h"
#include "gui/widgets/MaskedField.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

namespace {

Papel moeda(int i)
{
    return static_cast<Papel>(static_cast<int>(Papel::Moeda0) + i);
}

Papel valor(int i)
{
    return static_cast<Papel>(static_cast<int>(Papel::Valor0) + i);
}

bool soDigitos(const QString& v)
{
    for (const QChar c : v)
        if (!c.isDigit())
            return false;
    return !v.isEmpty();
}

const QString RotuloQuantidade = QString::fromUtf8("Quant. comercial em ");

}  // namespace

QuadroDocumento::QuadroDocumento(const MembroDocumento& membro, QWidget* parent) : QWidget(parent), m_m(membro)
{
    auto* coluna = new QVBoxLayout(this);
    coluna->setContentsMargins(0, 0, 0, 0);
    coluna->addWidget(constroiCampos());
    quadroGrade = new QGroupBox(this);
    auto* dentro = new QVBoxLayout(quadroGrade);
    grade = new ConsultGrid(quadroGrade);
    grade->setClickNeedsRowChange(true);
    grade->setObjectName(m_m.nomeGrade);
    QList<ConsultGrid::Column> colunas{{QString(), 20}};
    for (const ColunaDocumento& c : m_m.grade)
        colunas.append({c.titulo, c.largura, ConsultGrid::alignmentFor(c.formato, c.fonte)});
    colunas.append({m_m.dados.colunaId, 0});
    grade->setColumns(colunas);
    grade->setMinimumHeight(90);
    dentro->addWidget(grade);
    coluna->addWidget(quadroGrade, 1);
    liga();
    limpa();
}

void QuadroDocumento::adiciona(Papel papel, QWidget* campo, const QString& rotulo, QWidget* area, QGridLayout* g,
                               int linha, int coluna)
{
    campo->setObjectName(m_m.nomes.value(papel));
    m_campos.insert(papel, campo);
    auto* r = new QLabel(rotulo, area);
    // A long caption wraps rather than widen its column past the screen.
    r->setWordWrap(true);
    r->setBuddy(campo);
    m_rotulos.insert(papel, r);
    g->addWidget(r, linha, coluna);
    g->addWidget(campo, linha + 1, coluna);
}

QWidget* QuadroDocumento::constroiCampos()
{
    quadroCampos = new QGroupBox(this);
    quadroCampos->setObjectName(m_m.nomeQuadro);
    auto* g = new QGridLayout(quadroCampos);
    const auto nome = [this](Papel p) { return m_m.nomes.value(p); };

    int c = 0;
    int l = 0;
    if (tem(Papel::Sim)) {
        auto* eletronica = new QGroupBox(QString::fromUtf8("Eletrônica"), quadroCampos);
        auto* opcoes = new QHBoxLayout(eletronica);
        for (Papel p : {Papel::Sim, Papel::Nao}) {
            auto* o = new QRadioButton(p == Papel::Sim ? QStringLiteral("Sim") : QString::fromUtf8("Não"), eletronica);
            o->setObjectName(nome(p));
            m_campos.insert(p, o);
            opcoes->addWidget(o);
        }
        g->addWidget(eletronica, 0, c++, 2, 1);
    }
    // The fields in a row, an invoice's in rows of four, so that the page fits a screen of 1024 pixels.
    const QList<Papel> ordem{Papel::Numero, Papel::Ano,    Papel::Orgao,  Papel::Sequencial, Papel::Adicao,
                             Papel::ItemAdicao, Papel::NumeroBem, Papel::NumeroNF, Papel::Serie, Papel::ItemNF,
                             Papel::CFOP,   Papel::Data,   Papel::CNPJ,   Papel::Quantidade, Papel::ValorUnitario};
    const QMap<Papel, QString> rotulos{{Papel::Numero, QString::fromUtf8("Número")},
                                       {Papel::Ano, QStringLiteral("Ano")},
                                       {Papel::Orgao, QString::fromUtf8("Órgão")},
                                       {Papel::Sequencial, QString::fromUtf8("Seqüencial")},
                                       {Papel::Adicao, QString::fromUtf8("Adição")},
                                       {Papel::ItemAdicao, QStringLiteral("Item")},
                                       {Papel::NumeroBem, QString::fromUtf8("Número do bem")},
                                       {Papel::NumeroNF, QString::fromUtf8("Número")},
                                       {Papel::Serie, QStringLiteral("Série/Subserie")},
                                       {Papel::ItemNF, QStringLiteral("Item")},
                                       {Papel::CFOP, QStringLiteral("CFOP")},
                                       {Papel::Data, QString::fromUtf8("Data de emissão")},
                                       {Papel::CNPJ, QStringLiteral("CNPJ do emissor")},
                                       {Papel::Quantidade, RotuloQuantidade}};
    int colunas = c;
    for (Papel p : ordem) {
        if (!tem(p))
            continue;
        if (!tem(Papel::Sim) && c == 4) {
            c = 0;
            l += 2;
        }
        adiciona(p, constroiCampo(p), m_m.rotulos.value(p, rotulos.value(p)), quadroCampos, g, l, c++);
        colunas = std::max(colunas, c);
    }
    m_rotulos.value(Papel::Quantidade)->setObjectName(m_m.nomeRotuloQuantidade);

    auto* checks = new QHBoxLayout;
    const QList<QPair<Papel, QString>> caixas{{Papel::DecretoLei, QStringLiteral("Decreto-Lei 288/67")},
                                             {Papel::Obsolescencia, m_m.rotulos.value(Papel::Obsolescencia)},
                                             {Papel::Suspensao, m_m.rotulos.value(Papel::Suspensao)}};
    for (const auto& [p, rotulo] : caixas) {
        if (!tem(p))
            continue;
        auto* caixa = new QCheckBox(rotulo, quadroCampos);
        caixa->setObjectName(nome(p));
        m_campos.insert(p, caixa);
        checks->addWidget(caixa);
    }
    checks->addStretch(1);
    g->addLayout(checks, l + 2, 0, 1, colunas);
    if (tem(Papel::ValorTotal))
        adiciona(Papel::ValorTotal, constroiCampo(Papel::ValorTotal),
                 m_m.rotulos.value(Papel::ValorTotal, QStringLiteral("Valor total (R$)")), quadroCampos, g, l + 3, 0);
    auto* blocos = new QHBoxLayout;
    for (int i = 0; i < m_m.titulosBlocos.size(); ++i)
        blocos->addWidget(constroiBloco(i));
    g->addLayout(blocos, l + 5, 0, 1, colunas);
    return quadroCampos;
}

// The control of a field, by its part.
QWidget* QuadroDocumento::constroiCampo(Papel p)
{
    const QString nome = m_m.nomes.value(p);
    switch (p) {
    case Papel::Numero:
        return new MaskedField(QStringLiteral("##/#######-#"), nome);
    case Papel::Data:
        return new MaskedField(QStringLiteral("##/##/####"), nome);
    case Papel::CNPJ: {
        // Wide enough to show the whole number, which its column would otherwise squeeze.
        auto* cnpj = new MaskedField(QStringLiteral("##.###.###/####-##"), nome);
        cnpj->setMinimumWidth(cnpj->fontMetrics().horizontalAdvance(QStringLiteral("00.000.000/0000-000")));
        return cnpj;
    }
    case Papel::Serie: {
        auto* serie = new QLineEdit;
        serie->setObjectName(nome);
        serie->setMaxLength(5);
        return serie;
    }
    case Papel::NumeroNF: {
        auto* numero = new DigitField(nome, 6);
        numero->setDisplayFormat(QStringLiteral("000,000"));
        return numero;
    }
    case Papel::Quantidade:
        return new DecimalField(DecimalField::Quantity, nome, m_m.msgZeroDecimal);
    case Papel::ValorUnitario:
        return new DecimalField(DecimalField::UnitValue, nome, m_m.msgZeroDecimal);
    case Papel::ValorTotal:
        return new DecimalField(DecimalField::TotalValue, nome, m_m.msgZeroDecimal);
    default:
        break;
    }
    const QMap<Papel, int> larguras{{Papel::Ano, 2},       {Papel::Orgao, 7},     {Papel::Sequencial, 6},
                                    {Papel::Adicao, 3},    {Papel::ItemAdicao, 2}, {Papel::NumeroBem, 3},
                                    {Papel::ItemNF, 3},    {Papel::CFOP, 4}};
    return new DigitField(nome, larguras.value(p));
}

QWidget* QuadroDocumento::constroiBloco(int i)
{
    auto* bloco = new QGroupBox(m_m.titulosBlocos.at(i), quadroCampos);
    m_blocos << bloco;
    auto* g = new QGridLayout(bloco);
    auto* cod = new DigitField(m_m.nomes.value(moeda(i)), 3, bloco);
    // Freight and insurance may be zero (a block of value "0" without a currency is kept as it stands); the
    // product's own value may not.
    auto* val = new DecimalField(DecimalField::UnitValue, m_m.nomes.value(valor(i)), i == 0 ? m_m.msgZeroDecimal : QString(),
                                 bloco);
    auto* botao = new QPushButton(QStringLiteral("..."), bloco);
    botao->setObjectName(QString(m_m.nomes.value(moeda(i))).replace(0, 3, QStringLiteral("cmd")));
    botao->setMaximumWidth(30);
    m_campos.insert(moeda(i), cod);
    m_campos.insert(valor(i), val);
    g->addWidget(new QLabel(QStringLiteral("Moeda"), bloco), 0, 0);
    g->addWidget(cod, 1, 0);
    g->addWidget(botao, 1, 1);
    // The value's long caption wraps, so that three blocks side by side fit a screen of 1024 pixels.
    auto* rotuloValor = new QLabel(QString::fromUtf8("Valor unitário na medida comercial"), bloco);
    rotuloValor->setWordWrap(true);
    g->addWidget(rotuloValor, 0, 2);
    g->setColumnStretch(2, 1);
    cod->setMaximumWidth(cod->fontMetrics().horizontalAdvance(QStringLiteral("0000")) + 16);
    g->addWidget(val, 1, 2);
    DestinosEscolha::moeda().registra(m_m.chavesMoeda.value(i), cod, nullptr, this);
    connect(botao, &QPushButton::clicked, this,
            [this, i] { frmAssistMoeda::Escolhe(m_m.chavesMoeda.value(i), window()); });
    connect(cod, &QLineEdit::textChanged, this, [this, i] { confereMoeda(i); });
    return bloco;
}

void QuadroDocumento::liga()
{
    if (auto* sim = qobject_cast<QRadioButton*>(campo(Papel::Sim)))
        connect(sim, &QRadioButton::toggled, this, &QuadroDocumento::eletronica_Click);
    if (auto* numero = qobject_cast<MaskedField*>(campo(Papel::Numero))) {
        connect(numero, &QLineEdit::textChanged, this, [this, numero] {
            if (!m_carregando && numero->isComplete())
                confereNumero();
        });
        aoSair(numero, [this] { return confereNumeroAoSair(); });
    }
    for (auto i = m_m.regras.cbegin(); i != m_m.regras.cend(); ++i)
        if (QWidget* w = campo(i.key()))
            aoSair(w, [this, p = i.key()] { return confereDigitos(p); });
    if (auto* dl = qobject_cast<QCheckBox*>(campo(Papel::DecretoLei))) {
        connect(dl, &QCheckBox::toggled, this, [this](bool ligado) {
            if (auto* obs = qobject_cast<QCheckBox*>(campo(Papel::Obsolescencia))) {
                if (!ligado)
                    obs->setChecked(false);
                obs->setEnabled(ligado);
            }
            habilitaValores();
            habilitaUnitario(m_m.unitarioAoMudarDecreto);
        });
    }
    if (auto* obs = qobject_cast<QCheckBox*>(campo(Papel::Obsolescencia))) {
        connect(obs, &QCheckBox::toggled, this, [this](bool ligado) {
            if (QWidget* total = campo(Papel::ValorTotal)) {
                static_cast<QLineEdit*>(total)->clear();
                total->setEnabled(ligado);
            }
            habilitaValores();
            habilitaUnitario(m_m.unitarioAoMudarObsolescencia);
        });
    }
    if (auto* susp = qobject_cast<QCheckBox*>(campo(Papel::Suspensao)))
        connect(susp, &QCheckBox::toggled, this, [this] {
            if (m_m.esvaziaBlocosAoMudar && !m_carregando)
                for (int i = 0; i < m_blocos.size(); ++i)
                    for (Papel p : {moeda(i), valor(i)})
                        poe(p, QString());
            habilitaValores();
        });
    connect(grade, &ConsultGrid::rowChosen, this, &QuadroDocumento::escolheLinha);
    ligaNota();
}

// An invoice's series, date, CFOP and CNPJ.
void QuadroDocumento::ligaNota()
{
    if (auto* serie = qobject_cast<QLineEdit*>(campo(Papel::Serie))) {
        connect(serie, &QLineEdit::textEdited, this, [this, serie](const QString& texto) {
            const QString filtrado = NotaAquisicao::FiltraSerie(texto, m_m.serieMaiuscula);
            if (filtrado == texto)
                return;
            const int cursor = serie->cursorPosition() - (texto.size() - filtrado.size());
            serie->setText(filtrado);
            serie->setCursorPosition(m_m.serieMaiuscula ? filtrado.size() : std::max(0, cursor));
        });
        aoSair(serie, [this] { return confereSerie(); });
    }
    if (QWidget* cfop = campo(Papel::CFOP))
        aoSair(cfop, [this] {
            const QString msg = mensagemCFOP();
            if (msg.isEmpty())
                return true;
            MsgBox(msg, Msg::OKOnly | Msg::Critical);
            return false;
        });
    if (QWidget* emissao = campo(Papel::Data))
        aoSair(emissao, [this] { return confereData(); });
    if (QWidget* cnpj = campo(Papel::CNPJ))
        aoSair(cnpj, [this] {
            const QString d = texto(Papel::CNPJ);
            if (d.isEmpty())
                return true;
            if (Funcoes::EhZero(d)) {
                MsgBox(QString::fromUtf8("CNPJ inválido."), Msg::OKOnly | Msg::Critical);
                return false;
            }
            return Funcoes::ValidaCNPJ(d);
        });
}

bool QuadroDocumento::confereSerie()
{
    if (!NotaAquisicao::SerieZero(texto(Papel::Serie)))
        return true;
    MsgBox(m_m.msgSerieZero, Msg::OKOnly | Msg::Critical);
    return false;
}

// A date that passes brings the CFOP typed before it to its year; a CFOP that then fails takes the focus.
bool QuadroDocumento::confereData()
{
    const QString d = texto(Papel::Data);
    if (d.isEmpty())
        return true;
    if (const QString msg = NotaAquisicao::ConfereData(d, m_m.msgDataAno); !msg.isEmpty()) {
        MsgBox(msg, Msg::OKOnly | Msg::Critical);
        return false;
    }
    if (texto(Papel::CFOP).trimmed().size() >= 3) {
        if (const QString msg = mensagemCFOP(); !msg.isEmpty()) {
            MsgBox(msg, Msg::OKOnly | Msg::Critical);
            returnFocusLater(campo(Papel::CFOP));
        }
    }
    return true;
}

// The CFOP's message against the date, or empty; a blank CFOP passes.
QString QuadroDocumento::mensagemCFOP() const
{
    const QString cfop = texto(Papel::CFOP);
    if (cfop.trimmed().isEmpty())
        return QString();
    return NotaAquisicao::ConfereCFOP(cfop, texto(Papel::Data));
}

// "Não" shows the old number's parts and takes the suspension away; "Sim" shows the electronic number.
void QuadroDocumento::eletronica_Click()
{
    if (!tem(Papel::Sim))
        return;
    const bool sim = eletronica();
    for (Papel p : {Papel::Ano, Papel::Orgao, Papel::Sequencial}) {
        if (sim)
            poe(p, QString());
        campo(p)->setVisible(!sim);
        m_rotulos.value(p)->setVisible(!sim);
    }
    if (!sim)
        poe(Papel::Numero, QString());
    campo(Papel::Numero)->setVisible(sim);
    m_rotulos.value(Papel::Numero)->setVisible(sim);
    if (auto* susp = qobject_cast<QCheckBox*>(campo(Papel::Suspensao))) {
        if (!sim)
            susp->setChecked(false);
        susp->setEnabled(sim);
    }
}

bool QuadroDocumento::marcado(Papel p) const
{
    auto* c = qobject_cast<QCheckBox*>(campo(p));
    return c && c->isChecked();
}

bool QuadroDocumento::eletronica() const
{
    auto* sim = qobject_cast<QRadioButton*>(campo(Papel::Sim));
    return sim && sim->isChecked();
}

// Where a refused number sends the focus: the electronic number, the old number's year or the invoice's number.
Papel QuadroDocumento::focoNumero() const
{
    if (!tem(Papel::Sim))
        return Papel::NumeroNF;
    return eletronica() ? Papel::Numero : Papel::Ano;
}

bool QuadroDocumento::vale(Condicao c) const
{
    const bool dl = marcado(Papel::DecretoLei);
    const bool susp = marcado(Papel::Suspensao);
    switch (c) {
    case Condicao::Decreto:
        return dl;
    case Condicao::DecretoOuSuspensao:
        return dl || susp;
    case Condicao::DecretoSemObsolescenciaOuSuspensao:
        return (dl && !marcado(Papel::Obsolescencia)) || susp;
    case Condicao::Suspensao:
        return susp;
    case Condicao::Obsolescencia:
        return marcado(Papel::Obsolescencia);
    }
    return false;
}

void QuadroDocumento::habilitaValores()
{
    const bool ligado = vale(m_m.habilitacao);
    for (int i = 0; i < m_blocos.size(); ++i) {
        m_blocos.at(i)->setEnabled(ligado);
        for (Papel p : {moeda(i), valor(i)}) {
            if (!ligado)
                poe(p, QString());
            campo(p)->setEnabled(ligado);
        }
    }
}

void QuadroDocumento::habilitaUnitario(Condicao c)
{
    QWidget* unitario = campo(Papel::ValorUnitario);
    if (!unitario)
        return;
    const bool ligado = vale(c);
    if (!ligado)
        poe(Papel::ValorUnitario, QString());
    unitario->setEnabled(ligado);
}

bool QuadroDocumento::recusa(const QString& texto, Papel foco)
{
    MsgBox(texto, Msg::OKOnly | Msg::Critical);
    if (QWidget* w = campo(foco); w && w->isEnabled() && w->isVisible())
        w->setFocus(Qt::OtherFocusReason);
    return false;
}

bool QuadroDocumento::confereNumero()
{
    const QString d = qobject_cast<MaskedField*>(campo(Papel::Numero))->digits();
    if (Funcoes::EhZero(d) || !Funcoes::ValidaDigito(d, m_m.tipoDigito)) {
        MsgBox(m_m.msgNumeroInvalido, Msg::OKOnly | Msg::Critical);
        return false;
    }
    return true;
}

// Leaving a filled electronic number: its length when the member tests it, the zeros and the check digit, then the
// years it may not belong to.
bool QuadroDocumento::confereNumeroAoSair()
{
    auto* numero = qobject_cast<MaskedField*>(campo(Papel::Numero));
    if (numero->isBlank())
        return true;
    const auto falha = [](const QString& msg) {
        MsgBox(msg, Msg::OKOnly | Msg::Critical);
        return false;
    };
    if (!m_m.msgNumeroIncompleto.isEmpty() && !numero->isComplete())
        return falha(m_m.msgNumeroIncompleto);
    if (!confereNumero())
        return false;
    const int prefixo = numero->digits().left(2).toInt();
    if (!m_m.msgPrefixoRecusado.isEmpty() && prefixo >= m_m.prefixoRecusado.first
        && prefixo <= m_m.prefixoRecusado.second)
        return falha(m_m.msgPrefixoRecusado);
    return true;
}

bool QuadroDocumento::confereDigitos(Papel p)
{
    const RegraDigitos r = m_m.regras.value(p);
    const QString v = texto(p).trimmed();
    if (v.isEmpty())
        return true;
    bool formatoBom = soDigitos(v) && (r.largura == 0 || v.size() == r.largura);
    if (formatoBom && (r.minimo >= 0 || r.maximo >= 0)) {
        const int n = v.toInt();
        formatoBom = (r.minimo < 0 || n >= r.minimo) && (r.maximo < 0 || n <= r.maximo);
    }
    const bool zero = soDigitos(v) && Funcoes::EhZero(v);
    const auto falha = [](const QString& msg) {
        MsgBox(msg, Msg::OKOnly | Msg::Critical);
        return false;
    };
    if (r.formatoAntes && !r.msgFormato.isEmpty() && !formatoBom)
        return falha(r.msgFormato);
    if (zero && !r.msgZero.isEmpty())
        return falha(r.msgZero);
    if (!r.formatoAntes && !r.msgFormato.isEmpty() && !formatoBom)
        return falha(r.msgFormato);
    if (r.completa > 0)
        poe(p, Funcoes::ZeroEsquerda(v, r.completa));
    return true;
}

void QuadroDocumento::confereMoeda(int i)
{
    auto* cod = static_cast<QLineEdit*>(campo(moeda(i)));
    if (m_carregando || cod->text().size() < 3)
        return;
    if (!Cadastros::Existe(Cadastros::Moeda(), cod->text())) {
        MsgBox(QStringLiteral("Código de Moeda não encontrado!"), Msg::OKOnly | Msg::Critical);
        cod->selectAll();
    }
}

QString QuadroDocumento::texto(Papel p) const
{
    QWidget* w = campo(p);
    if (auto* d = qobject_cast<DecimalField*>(w))
        return d->value();
    if (auto* d = qobject_cast<DigitField*>(w))
        return d->value();
    if (auto* mf = qobject_cast<MaskedField*>(w))
        return mf->digits();
    if (auto* c = qobject_cast<QCheckBox*>(w))
        return c->isChecked() ? QStringLiteral("S") : QStringLiteral("N");
    if (auto* l = qobject_cast<QLineEdit*>(w))
        return l->text();
    return QString();
}

void QuadroDocumento::poe(Papel p, const QString& v)
{
    QWidget* w = campo(p);
    if (auto* decimal = qobject_cast<DecimalField*>(w))
        decimal->setValue(v);
    else if (auto* digitos = qobject_cast<DigitField*>(w))
        digitos->setValue(v);
    else if (auto* mf = qobject_cast<MaskedField*>(w))
        mf->setDigits(v);
    else if (auto* c = qobject_cast<QCheckBox*>(w))
        c->setChecked(v == QLatin1String("S"));
    else if (auto* l = qobject_cast<QLineEdit*>(w))
        l->setText(v);
}

bool QuadroDocumento::valida()
{
    if (eletronica()) {
        auto* numero = qobject_cast<MaskedField*>(campo(Papel::Numero));
        if (numero->isBlank())
            return recusa(m_m.msgNumeroVazio, Papel::Numero);
        if (!m_m.msgNumeroZero.isEmpty() && Funcoes::EhZero(numero->digits()))
            return recusa(m_m.msgNumeroZero, Papel::Numero);
        if (!m_m.msgNumeroCurto.isEmpty() && !numero->isComplete())
            return recusa(m_m.msgNumeroCurto, Papel::Numero);
    } else if (tem(Papel::Sim)) {
        for (Papel p : {Papel::Ano, Papel::Orgao, Papel::Sequencial})
            if (texto(p).trimmed().isEmpty())
                return recusa(m_m.msgAntigaVazia, Papel::Ano);
    }
    for (const Passo& passo : m_m.passos) {
        const QString v = texto(passo.papel).trimmed();
        switch (passo.teste) {
        case Teste::Vazio:
            if (v.isEmpty())
                return recusa(passo.msg, passo.papel);
            break;
        case Teste::VazioSeAtivo:
            if (campo(passo.papel)->isEnabled() && v.isEmpty())
                return recusa(passo.msg, passo.papel);
            break;
        case Teste::Zero:
            if (soDigitos(v) && Funcoes::EhZero(v))
                return recusa(passo.msg, passo.papel);
            break;
        case Teste::Regra:
            if (const QString msg = mensagemCFOP(); !msg.isEmpty())
                return recusa(msg, passo.papel);
            break;
        }
    }
    const QString moedaNula = QStringLiteral("O campo moeda não pode ser nulo.");
    const QString naoEncontrada = QStringLiteral("Código de Moeda não encontrado!");
    const QString valorNulo = QString::fromUtf8("O campo valor unitário não pode ser nulo.");
    for (int i = 0; i < m_blocos.size(); ++i) {
        if (!campo(valor(i))->isEnabled())
            continue;
        const QString cod = texto(moeda(i)).trimmed();
        const QString val = texto(valor(i));
        const bool semValor = val.isEmpty() || Funcoes::EhZero(val);
        if (i > 0 && cod.isEmpty()) {
            // Freight and insurance are optional: an empty block is a block of value zero.
            if (val.isEmpty())
                poe(valor(i), QStringLiteral("0"));
            else if (!semValor)
                return recusa(moedaNula, moeda(i));
            continue;
        }
        if (cod.isEmpty())
            return recusa(moedaNula, moeda(i));
        if (!Cadastros::Existe(Cadastros::Moeda(), cod))
            return recusa(naoEncontrada, moeda(i));
        if (semValor)
            return recusa(valorNulo, valor(i));
    }
    return true;
}

QVariantMap QuadroDocumento::linha() const
{
    QVariantMap l;
    for (auto i = m_m.colunas.cbegin(); i != m_m.colunas.cend(); ++i)
        l.insert(i.value().toUpper(), texto(i.key()));
    for (auto i = m_m.colunasDoPai.cbegin(); i != m_m.colunasDoPai.cend(); ++i)
        l.insert(i.key().toUpper(), m_textosPai.value(i.value()));
    if (!tem(Papel::Sim))
        return l;
    const bool sim = eletronica();
    if (!sim)
        l.insert(m_m.colunas.value(Papel::Numero).toUpper(), QString());
    l.insert(m_m.colunaNumeroAntiga.toUpper(),
             sim ? QString() : texto(Papel::Ano) + texto(Papel::Orgao) + texto(Papel::Sequencial));
    return l;
}

QVariantMap QuadroDocumento::criterio() const
{
    const QVariantMap l = linha();
    QVariantMap c;
    if (tem(Papel::Sim)) {
        const QString numero = (eletronica() ? m_m.colunas.value(Papel::Numero) : m_m.colunaNumeroAntiga).toUpper();
        c.insert(numero, l.value(numero));
    }
    for (Papel p : m_m.chaveDuplicado) {
        const QString col = m_m.colunas.value(p).toUpper();
        c.insert(col, l.value(col));
    }
    return c;
}

void QuadroDocumento::definePai(const QVariantList& pai, const QMap<QString, QString>& textos)
{
    m_pai = pai;
    m_textosPai = textos;
}

void QuadroDocumento::defineUnidade(const QString& unidade)
{
    if (QLabel* r = m_rotulos.value(Papel::Quantidade))
        r->setText(m_m.rotulos.value(Papel::Quantidade, RotuloQuantidade) + unidade);
}

void QuadroDocumento::carrega()
{
    QList<QStringList> linhas;
    if (!m_pai.isEmpty()) {
        for (const QVariantMap& l : DocumentoEntrada::Linhas(m_m.dados, m_pai)) {
            QStringList celulas{QString()};
            for (const ColunaDocumento& c : m_m.grade) {
                QString v = c.fonte.startsWith(QLatin1Char('#')) ? m_textosPai.value(c.fonte)
                                                                 : l.value(c.fonte.toUpper()).toString();
                if (!c.formato.isEmpty() && !v.trimmed().isEmpty())
                    v = Funcoes::Formata(v, c.formato);
                celulas << v;
            }
            celulas << l.value(m_m.dados.colunaId.toUpper()).toString();
            linhas << celulas;
        }
    }
    grade->setRows(linhas);
    m_id = 0;
    m_escolhida.clear();
    emit selecaoMudou(false);
}

void QuadroDocumento::limpa()
{
    m_carregando = true;
    for (QWidget* w : std::as_const(m_campos))
        if (auto* l = qobject_cast<QLineEdit*>(w))
            l->clear();
    for (Papel p : {Papel::Suspensao, Papel::Obsolescencia, Papel::DecretoLei})
        if (auto* c = qobject_cast<QCheckBox*>(campo(p)))
            c->setChecked(false);
    if (auto* sim = qobject_cast<QRadioButton*>(campo(Papel::Sim)))
        sim->setChecked(true);
    eletronica_Click();
    if (auto* obs = campo(Papel::Obsolescencia))
        obs->setEnabled(false);
    if (auto* total = campo(Papel::ValorTotal))
        total->setEnabled(false);
    habilitaValores();
    habilitaUnitario(m_m.unitarioAoMudarDecreto);
    m_carregando = false;
}

void QuadroDocumento::escolheLinha(int linha)
{
    if (linha < 0 || linha >= grade->dataRowCount())
        return;
    const qint64 id = grade->cellText(linha, m_m.grade.size() + 1).toLongLong();
    const QVariantMap l = DocumentoEntrada::Le(m_m.dados, id);
    if (l.isEmpty())
        return;
    mostra(l);
    m_id = id;
    m_escolhida = l;
    emit selecaoMudou(true);
}

void QuadroDocumento::mostra(const QVariantMap& l)
{
    m_carregando = true;
    const QString antiga = l.value(m_m.colunaNumeroAntiga.toUpper()).toString().trimmed();
    if (tem(Papel::Sim))
        qobject_cast<QRadioButton*>(campo(antiga.isEmpty() ? Papel::Sim : Papel::Nao))->setChecked(true);
    eletronica_Click();
    if (tem(Papel::Sim) && !antiga.isEmpty()) {
        poe(Papel::Ano, antiga.mid(0, 2));
        poe(Papel::Orgao, antiga.mid(2, 7));
        poe(Papel::Sequencial, antiga.mid(9));
    }
    // The checks first, so that their enabling rules run before the values they let in are shown.
    for (Papel p : {Papel::DecretoLei, Papel::Obsolescencia, Papel::Suspensao})
        if (m_m.colunas.contains(p))
            poe(p, l.value(m_m.colunas.value(p).toUpper()).toString());
    habilitaValores();
    habilitaUnitario(marcado(Papel::Obsolescencia) ? m_m.unitarioAoMudarObsolescencia : m_m.unitarioAoMudarDecreto);
    for (auto i = m_m.colunas.cbegin(); i != m_m.colunas.cend(); ++i) {
        const Papel p = i.key();
        if (p != Papel::DecretoLei && p != Papel::Obsolescencia && p != Papel::Suspensao)
            poe(p, l.value(i.value().toUpper()).toString());
    }
    m_carregando = false;
}

bool QuadroDocumento::incluir()
{
    if (!m_m.msgSemPai.isEmpty() && m_pai.isEmpty()) {
        MsgBox(m_m.msgSemPai, Msg::OKOnly | Msg::Critical);
        return false;
    }
    if (m_pai.isEmpty() || !valida())
        return false;
    if (DocumentoEntrada::Existe(m_m.dados, m_pai, criterio())) {
        const bool antiga = tem(Papel::Sim) && !eletronica();
        return recusa(antiga ? m_m.msgDuplicadoAntiga : m_m.msgDuplicadoEletronica, focoNumero());
    }
    modVRTPLN::AlteracaoPendente = true;
    const QVariantMap l = linha();
    const qint64 id = DocumentoEntrada::Insere(m_m.dados, m_pai, l);
    if (!m_m.dados.tabelaValores.isEmpty() && vale(m_m.filhaNaInclusao))
        DocumentoEntrada::GravaValores(m_m.dados, id, l);
    carrega();
    limpa();
    return true;
}

bool QuadroDocumento::alterar()
{
    if (m_id == 0) {
        if (!m_m.msgSemSelecaoAlterar.isEmpty())
            MsgBox(m_m.msgSemSelecaoAlterar, Msg::OKOnly | Msg::Critical);
        return false;
    }
    if (!valida())
        return false;
    if (!m_m.msgDuplicadoAlteracao.isEmpty()) {
        const QVariantMap c = criterio();
        bool mudou = false;
        for (auto i = c.cbegin(); i != c.cend(); ++i)
            mudou = mudou || i.value().toString().trimmed() != m_escolhida.value(i.key()).toString().trimmed();
        if (mudou && DocumentoEntrada::Existe(m_m.dados, m_pai, c))
            return recusa(m_m.msgDuplicadoAlteracao, focoNumero());
    }
    modVRTPLN::AlteracaoPendente = true;
    const QVariantMap l = linha();
    DocumentoEntrada::Altera(m_m.dados, m_id, l);
    if (!m_m.dados.tabelaValores.isEmpty()) {
        if (vale(m_m.filhaNaAlteracao))
            DocumentoEntrada::GravaValores(m_m.dados, m_id, l);
        else
            DocumentoEntrada::ExcluiValores(m_m.dados, m_id);
    }
    carrega();
    limpa();
    return true;
}

bool QuadroDocumento::excluir()
{
    if (m_id == 0) {
        MsgBox(m_m.msgSemSelecaoExcluir, Msg::OKOnly | Msg::Critical);
        return false;
    }
    if (MsgBox(QStringLiteral("Deseja realmente excluir?"), Msg::YesNo | Msg::Information) != Msg::Yes)
        return false;
    modVRTPLN::AlteracaoPendente = true;
    DocumentoEntrada::Exclui(m_m.dados, m_id);
    limpa();
    carrega();
    return true;
}
