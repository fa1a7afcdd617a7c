#include "core/file/checking/VerificaArquivoVrt.h"

#include "core/file/layout/LinhasArquivo.h"
#include "core/file/layout/RegistroLido.h"
#include "core/file/layout/RegistrosCabeca.h"

#include <QDate>
#include <QFile>
#include <QSet>

namespace {
QString s(const char* t)
{
    return QString::fromUtf8(t);
}
bool soDigitos(const QString& t)
{
    for (QChar c : t) {
        if (c < QLatin1Char('0') || c > QLatin1Char('9'))
            return false;
    }
    return true;
}
// The writer's own forms in numeric slots, from data the program accepts, which the reader reads back as they
// stand: field, value.
struct FormaDoGravador {
    const char* campo;
    const char* valor;
};
const FormaDoGravador FormasDoGravador[] = {
    // A Null CFOP goes out as "000" and a blank.
    {"CD_OP_FISCAL", "000 "},
    // The individual record 12 puts the obsolescence indicator, "S" or "N", in a zero-filled slot.
    {"IND_OBSOLE_RESIDUO", "S"},
    {"IND_OBSOLE_RESIDUO", "N"},
};
bool formaDoGravador(const QString& campo, const QString& valor)
{
    for (const FormaDoGravador& f : FormasDoGravador)
        if (campo == QLatin1String(f.campo) && valor == QLatin1String(f.valor))
            return true;
    return false;
}
QString ordinal(int n)
{
    return QString::number(n) + s("º");
}
}  // namespace

QString ProblemaArquivo::texto() const
{
    QString t = linha > 0 ? s("linha ") + QString::number(linha) : s("arquivo");
    if (posicaoInicial > 0) {
        t += posicaoFinal > posicaoInicial
                 ? s(", posições ") + QString::number(posicaoInicial) + QLatin1Char('-') + QString::number(posicaoFinal)
                 : s(", posição ") + QString::number(posicaoInicial);
    }
    if (!campo.isEmpty())
        t += s(" (") + campo + QLatin1Char(')');
    return t + s(": ") + descricao;
}

void VerificaArquivoVrt::problema(int linha, const QString& descricao, int inicio, int fim, const QString& campo)
{
    m_problemas.append({linha, inicio, fim, campo, descricao});
}

bool VerificaArquivoVrt::verifica(const QString& caminho)
{
    QFile arquivo(caminho);
    return verifica(arquivo);
}

bool VerificaArquivoVrt::verifica(QIODevice& dispositivo)
{
    m_problemas.clear();
    m_linhas = 0;
    LinhasArquivo arquivo;
    if (!arquivo.abre(dispositivo)) {
        const auto* f = qobject_cast<QFile*>(&dispositivo);
        problema(0, s("Não foi possível abrir o arquivo ") + (f ? f->fileName() : QString()) + s("."));
        return false;
    }
    // The head records are kept; the item records are checked one at a time, so that a large file is never
    // held whole as text.
    QStringList cabecalho;
    while (!arquivo.fim() && cabecalho.size() < 4)
        cabecalho << arquivo.proxima();
    m_linhas = cabecalho.size();
    if (cabecalho.isEmpty() && !arquivo.falhou()) {
        problema(0, s("Erro - Arquivo sem registros!"));
        return true;
    }
    // A head cut short by a failed read is not a file without its records: the read error alone is told.
    const bool cabecaCortada = arquivo.falhou() && cabecalho.size() < 4;
    if (!cabecalho.isEmpty() && !cabecaCortada) {
        verificaCabecalho(cabecalho);
        const TipoDeclaracao declaracao = cabecalho.at(0).mid(15, 1) == s("1") ? TipoDeclaracao::Individual
                                                                               : TipoDeclaracao::Mensal;
        verificaItens(arquivo, declaracao);
    }
    if (arquivo.falhou()) {
        const auto* f = qobject_cast<QFile*>(&dispositivo);
        problema(m_linhas, s("Erro na leitura do arquivo ") + (f ? f->fileName() : QString()) +
                               s(" - o arquivo foi alterado ou retirado durante a leitura!"));
    }
    return true;
}

void VerificaArquivoVrt::verificaCabecalho(const QStringList& linhas)
{
    // Record 00: every test of the reader, each with the reader's own text.
    const QString r00 = linhas.at(0);
    const bool forma00 = confereCabeca(1, r00);
    const QString cab = r00.left(10);
    if (cab != s("00VRT/PLN1") && cab != s("00VRT/PLN2") && cab != s("00VRT/PLN3"))
        problema(1, s("Erro no Header"), 1, 10);
    if (r00.mid(10, 5) != s("02.00"))
        problema(1, s("Erro no registro 00 - Versão do sistema!"), 11, 15, s("VERSAO_LAYOUT"));
    if (r00.mid(15, 1) != s("1") && r00.mid(15, 1) != s("2"))
        problema(1, s("Erro no registro 00 - Tipo VRT inválido!"), 16, 16, s("CD_TIPO_VRT"));
    if (RegistroLido::soZeros(r00.mid(47, 14)))
        problema(1, s("Erro no registro 00 - CNPJ inválido!"), 48, 61, s("NR_CNPJ_INTERNADOR"));
    if (forma00)
        verificaCampos(1, r00, RegistrosCabeca::layout(1));

    for (int numero = 2; numero <= 4; ++numero) {
        if (linhas.size() < numero) {
            problema(0, RegistrosCabeca::textoAusente(numero));
            return;
        }
        const QString& l = linhas.at(numero - 1);
        const bool forma = confereCabeca(numero, l);
        if (numero == 3 && l.mid(2, 1) != s("N") && l.mid(2, 1) != s("S"))
            problema(numero, s("Erro no registro 02 - Indicador de mandado judicial inválido!"), 3, 3,
                     s("IND_MANDADO_JUDIC"));
        if (forma)
            verificaCampos(numero, l, RegistrosCabeca::layout(numero));
    }
}

bool VerificaArquivoVrt::confereCabeca(int numero, const QString& linha)
{
    bool certa = true;
    const int tamanho = RegistrosCabeca::layout(numero).tamanho;
    if (linha.size() != tamanho) {
        problema(numero, RegistrosCabeca::textoTamanho(numero) + s(" (") + QString::number(linha.size()) +
                             s(" caracteres, esperados ") + QString::number(tamanho) + s(")"));
        certa = false;
    }
    if (linha.left(2) != RegistrosCabeca::tipo(numero)) {
        problema(numero, RegistrosCabeca::textoTipo(numero), 1, 2);
        certa = false;
    }
    return certa;
}

void VerificaArquivoVrt::verificaItens(LinhasArquivo& arquivo, TipoDeclaracao declaracao)
{
    static const QSet<QString> tipos = {s("11"), s("12"), s("13"), s("14"), s("21"), s("31"),
                                        s("32"), s("33"), s("34"), s("35"), s("36"), s("41")};
    // What the nesting allows next: documents of a foreign product only after its record 11 (NFA, then DI,
    // then DSI); an input only after its product's record 31; the input's records only after the input.
    QString produto;      // "11" or "31" while a product is open
    bool insumo = false;  // a record 32 is open
    int documento = 0;    // 12, 13 or 14: the last document of the open record 11
    int modalidade = 0;   // monthly files sort their items by modality
    while (!arquivo.fim()) {
        const int numero = ++m_linhas;
        const QString l = arquivo.proxima();
        const QString tipo = l.left(2);
        if (!tipos.contains(tipo)) {
            problema(numero, s("Registro inesperado") + s(" (tipo \"") + tipo + s("\")"), 1, 2);
            continue;
        }
        const LayoutRegistro& layout = LayoutRegistro::de(declaracao, tipo);
        const bool tamanhoOk = layout.tamanhoExato ? l.size() == layout.tamanho : l.size() <= layout.tamanho;
        if (!tamanhoOk)
            problema(numero, s("Erro no ") + ordinal(numero) + s(" registro (registro ") + tipo +
                                 s(") - Tamanho inválido!") + s(" (") + QString::number(l.size()) +
                                 (layout.tamanhoExato ? s(" caracteres, esperados ") : s(" caracteres, no máximo ")) +
                                 QString::number(layout.tamanho) + s(")"));
        else
            verificaCampos(numero, l, layout);

        const int t = tipo.toInt();
        const int familia = t / 10;
        if (declaracao == TipoDeclaracao::Mensal && (t == 11 || t == 21 || t == 31 || t == 41)) {
            if (familia < modalidade)
                problema(numero, s("registro ") + tipo + s(" depois de itens de modalidade ") +
                                     QString::number(modalidade) + s(": os itens vêm pela ordem das modalidades"),
                         1, 2);
            modalidade = qMax(modalidade, familia);
        }
        if (t == 11 || t == 21 || t == 31 || t == 41) {
            produto = tipo;
            insumo = false;
            documento = 0;
        } else if (t >= 12 && t <= 14) {
            if (produto != s("11"))
                problema(numero, s("registro ") + tipo + s(" sem o registro 11 do seu produto antes"), 1, 2);
            else if (t < documento)
                problema(numero, s("registro ") + tipo + s(" depois de um registro ") + QString::number(documento) +
                                     s(" do mesmo produto: a ordem é 12, 13, 14"),
                         1, 2);
            documento = qMax(documento, t);
        } else if (t == 32) {
            if (produto != s("31"))
                problema(numero, s("registro 32 sem o registro 31 do seu produto antes"), 1, 2);
            insumo = true;
        } else if (!insumo) {
            problema(numero, s("registro ") + tipo + s(" sem o registro 32 do seu insumo antes"), 1, 2);
        }
    }
}

void VerificaArquivoVrt::verificaCampos(int numero, const QString& linha, const LayoutRegistro& layout)
{
    for (const CampoLayout& c : layout.campos) {
        if (c.fim() > linha.size())
            continue;  // a shorter line is filled with blanks by the reader
        const QString valor = c.de(linha);
        if (c.tipo == TipoCampo::K) {
            // The constants of record 00 are the header and the version, tested above with the reader's texts.
            if (layout.tipo != s("00") && !c.constante.isEmpty() && valor != c.constante)
                problema(numero, s("esperado \"") + c.constante + s("\", encontrado \"") + valor + s("\""), c.posicao,
                         c.fim(), c.nome);
            continue;
        }
        if (!c.numerico())
            continue;
        if (formaDoGravador(c.nome, valor))
            continue;
        if (!soDigitos(valor)) {
            problema(numero, s("campo numérico com \"") + valor + s("\": só dígitos são aceitos"), c.posicao, c.fim(),
                     c.nome);
            continue;
        }
        if (c.tipo == TipoCampo::DT && valor != s("00000000") &&
            !QDate::fromString(valor, s("yyyyMMdd")).isValid())
            problema(numero, s("data inválida \"") + valor + s("\" (esperado aaaammdd)"), c.posicao, c.fim(), c.nome);
    }
}
