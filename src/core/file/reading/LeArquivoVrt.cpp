#include "core/file/reading/LeArquivoVrt.h"

#include "core/file/reading/CadastrosLeitura.h"
#include "core/file/numbering/GeraIdentificacao.h"
#include "core/file/layout/LinhasArquivo.h"
#include "core/file/reading/ModGravaVrtIndividual.h"
#include "core/file/reading/ModGravaVrtMensal.h"
#include "core/file/layout/RegistroLido.h"
#include "core/file/layout/RegistrosCabeca.h"
#include "core/file/layout/SlotsValores.h"
#include "core/rules/Formatadores.h"
#include "core/session/MsgBox.h"
#include "core/store/Cadastros.h"
#include "core/store/ComandosPreparados.h"
#include "core/store/modBancoDados.h"

#include <QFile>
#include <QSet>

namespace {
QString s(const char* t)
{
    return QString::fromUtf8(t);
}
QVariant tx(const QString& v)
{
    return ComandosPreparados::texto(v);
}
}  // namespace

LeArquivoVrt::LeArquivoVrt(QIODevice& arquivo, ModoLeitura modo) : m_arquivo(&arquivo), m_modo(modo)
{
    if (auto* f = qobject_cast<QFile*>(&arquivo))
        m_caminho = f->fileName();
}

LeArquivoVrt::LeArquivoVrt(const QString& pasta, const QString& nome, ModoLeitura modo)
    : m_arquivoProprio(std::make_unique<QFile>(pasta.isEmpty() ? nome : pasta + QLatin1Char('/') + nome)),
      m_arquivo(m_arquivoProprio.get()), m_modo(modo)
{
    m_caminho = static_cast<QFile*>(m_arquivo)->fileName();
}

bool LeArquivoVrt::falhaDeLeitura()
{
    return m_estado.falha(m_tipoAtual, s("Erro na leitura do arquivo ") + m_caminho + s(" após o ") +
                                           QString::number(m_estado.ContaLinhas) +
                                           s("º registro - o arquivo foi alterado ou retirado durante a leitura!"));
}

bool LeArquivoVrt::erroCabecalho(const QString& texto)
{
    return m_estado.falha(m_cabecaAtual, texto);
}

LeArquivoVrt::~LeArquivoVrt() = default;

void LeArquivoVrt::avisaProgresso(qint64 lidas, qint64 total, bool sempre)
{
    if (!m_progresso || total <= 0)
        return;
    const int percentual = int(lidas * 100 / total);
    if (sempre || percentual != m_ultimoPercentual) {
        m_ultimoPercentual = percentual;
        m_progresso(lidas, total);
    }
}

bool LeArquivoVrt::executa()
{
    mostra(le(), m_modo);
    return m_resultado.concluida;
}

void LeArquivoVrt::mostra(const ResultadoLeitura& r, ModoLeitura modo)
{
    for (const MensagemLeitura& m : r.mensagens)
        MsgBox(m.texto, m.estilo, m.titulo);
    if (!r.concluida)
        return;
    if (modo == ModoLeitura::Restaurar)
        MsgBox(s("Backup restaurado com o nome ") + r.IdVrtLida, Msg::Information);
    else
        MsgBox(relatorio(r), Msg::Information);
}

const ResultadoLeitura& LeArquivoVrt::le()
{
    m_resultado = ResultadoLeitura();
    m_estado = EstadoLeitura();
    LinhasArquivo linhas;
    if (!linhas.abre(*m_arquivo)) {
        erroCabecalho(s("Não foi possível abrir o arquivo ") + m_caminho + s("."));
    } else if (linhas.falhou()) {
        falhaDeLeitura();
    } else if (linhas.fim()) {
        erroCabecalho(s("Erro - Arquivo sem registros!"));
    } else {
        leDentroDaTransacao(linhas);
    }
    m_resultado.mensagens = m_estado.mensagens;
    return m_resultado;
}

void LeArquivoVrt::leDentroDaTransacao(LinhasArquivo& linhas)
{
    bool concluida = false;
    {
        ComandosPreparados comandos(ComandosPreparados::AntesDeFalhar::Recusa);
        CadastrosLeitura cadastros(comandos, m_estado);
        m_comandos = &comandos;
        m_cadastros = &cadastros;
        // One transaction for the whole file: a failure anywhere rolls back everything, the number taken and
        // the deletion of a replaced declaration included.
        modBancoDados::Transacao transacao;
        concluida = leLinhasOuRecusa(linhas);
        if (concluida) {
            transacao.confirma();
            m_resultado.ProdutosCadastrados = cadastros.ProdutosCadastrados;
            m_resultado.ProdutosAlterados = cadastros.ProdutosAlterados;
            m_resultado.UnidadesCadastradas = cadastros.UnidadesCadastradas;
        }
        m_comandos = nullptr;
        m_cadastros = nullptr;
    }
    m_resultado.ContaLinhas = m_estado.ContaLinhas;
    if (!concluida) {
        avisaProgresso(0, linhas.total(), true);
        return;
    }
    m_resultado.concluida = true;
    m_resultado.IdVrtLida = m_estado.IdVrtLida;
    avisaProgresso(linhas.total(), linhas.total(), true);
}

QString LeArquivoVrt::relatorio(const ResultadoLeitura& r)
{
    const QChar cr = QLatin1Char('\r');
    QString texto = s("Relatório da importação:") + cr + cr;
    texto += s("- ") + QString::number(r.ContaLinhas) + s(" registros importados.") + cr;
    if (r.ProdutosCadastrados > 0)
        texto += s("- ") + QString::number(r.ProdutosCadastrados) + s(" produtos cadastrados.") + cr;
    if (r.ProdutosAlterados > 0)
        texto += s("- ") + QString::number(r.ProdutosAlterados) + s(" produtos alterados.") + cr;
    if (r.UnidadesCadastradas > 0)
        texto += s("- ") + QString::number(r.UnidadesCadastradas) + s(" unidades de medida cadastradas.") + cr;
    texto += cr + s("O arquivo foi importado com sucesso! ") + cr + s("Número de identificação: ") + r.IdVrtLida;
    return texto;
}

bool LeArquivoVrt::leLinhasOuRecusa(LinhasArquivo& linhas)
{
    try {
        return leLinhas(linhas);
    } catch (const ComandoRecusado&) {
        // A line whose row the database refuses (a record 12 before any record 11 has no parent key) is a bad
        // line like any other: the file is refused at it and the transaction rolled back.
        return m_estado.falha(m_tipoAtual, s("Erro no ") + QString::number(m_estado.ContaLinhas) +
                                               s("º registro (registro ") + m_tipoAtual +
                                               s(") - Registro não aceito pelo banco de dados!"));
    }
}

bool LeArquivoVrt::leLinhas(LinhasArquivo& linhas)
{
    if (!registro00(linhas) || !registro01(linhas))
        return false;
    if (m_estado.IdVrtLida.isEmpty())
        m_estado.IdVrtLida = Funcoes::GeraIdentificacao();
    avisaProgresso(m_estado.ContaLinhas, linhas.total());
    if (!registro02(linhas) || !registro03(linhas))
        return false;
    // The head rows go in whole once records 00 to 03 are read: inside the reading's one transaction this
    // leaves the rows that inserting VRT after record 01 and completing it after record 03 would leave.
    m_cabeca.grava(*m_comandos, m_estado.declaracao, m_estado.IdVrtLida);
    avisaProgresso(m_estado.ContaLinhas, linhas.total());
    m_cadastros->zeraContadores();

    if (m_estado.declaracao == TipoDeclaracao::Individual) {
        m_cabeca.gravaNotaFiscal(*m_comandos, m_estado.IdVrtLida);
        m_estado.idNfs = m_comandos->valor("SELECT ID_NFS FROM NOTA_FISCAL_SAIDA WHERE ID_VRT_MICRO = ?",
                                           {m_estado.IdVrtLida});
        if (!m_estado.idNfs.isValid())
            return m_estado.falha(s("01"), s("ERRO NA RECUPERAÇÃO DO REGISTRO 01 DA INDIVIDUAL"));
    }
    return leItens(linhas);
}

bool LeArquivoVrt::leCabeca(LinhasArquivo& linhas, int numero, QString& linha)
{
    const QString tipo = RegistrosCabeca::tipo(numero);
    m_cabecaAtual = tipo;
    m_tipoAtual = tipo;
    if (linhas.fim())
        return linhas.falhou() ? falhaDeLeitura() : m_estado.falha(tipo, RegistrosCabeca::textoAusente(numero));
    linha = linhas.proxima();
    ++m_estado.ContaLinhas;
    const QString problema = RegistrosCabeca::confere(numero, linha);
    return problema.isEmpty() || m_estado.falha(tipo, problema);
}

bool LeArquivoVrt::registro00(LinhasArquivo& linhas)
{
    QString linha;
    if (!leCabeca(linhas, 1, linha))
        return false;
    const QString cabecalho = linha.left(10);
    if (cabecalho != s("00VRT/PLN1") && cabecalho != s("00VRT/PLN2") && cabecalho != s("00VRT/PLN3"))
        return erroCabecalho(s("Erro no Header"));

    if (m_modo == ModoLeitura::Restaurar) {
        QString pergunta;
        if (linha.at(9) == QLatin1Char('1'))
            pergunta = s("Esta VRT foi gravada para transmissão. Deseja continuar a restaurar backup?");
        else if (linha.at(9) == QLatin1Char('2'))
            pergunta = s("Esta VRT foi gerada pela estrutura própria para transmissão. Deseja continuar a restaurar "
                         "backup?");
        // No ends the reading without a word.
        if (!pergunta.isEmpty() && MsgBox(pergunta, Msg::YesNo | Msg::Question) != Msg::Yes)
            return false;
    }

    m_cabeca.defineLinha(1, linha);
    const RegistroLido r = m_cabeca.registro(1);
    if (r.texto(s("VERSAO_LAYOUT")) != s("02.00"))
        return erroCabecalho(s("Erro no registro 00 - Versão do sistema!"));
    m_estado.TipoVrtLida = r.texto(s("CD_TIPO_VRT"));
    if (m_estado.TipoVrtLida != s("1") && m_estado.TipoVrtLida != s("2"))
        return erroCabecalho(s("Erro no registro 00 - Tipo VRT inválido!"));
    m_estado.declaracao = m_estado.TipoVrtLida == s("1") ? TipoDeclaracao::Individual : TipoDeclaracao::Mensal;
    if (r.zeros(s("NR_CNPJ_INTERNADOR")))
        return erroCabecalho(s("Erro no registro 00 - CNPJ inválido!"));
    return procuraDuplicada(r);
}

bool LeArquivoVrt::procuraDuplicada(const RegistroLido& r00)
{
    // The key of the declaration as it will be stored: each field by its reading rule.
    const auto campo = [&r00](const char* nome) { return tx(r00.lido(s(nome))); };
    QVariant achada;
    QString pergunta;
    if (m_estado.declaracao == TipoDeclaracao::Mensal) {
        achada = m_comandos->valor("SELECT VRT.ID_VRT_MICRO FROM VRT INNER JOIN VRT_MENSAL "
                                   "ON VRT.ID_VRT_MICRO = VRT_MENSAL.ID_VRT_MICRO "
                                   "WHERE NR_CNPJ_INTERNADOR = ? AND DT_REFERENCIA_VRT = ?",
                                   {campo("NR_CNPJ_INTERNADOR"), campo("DT_REFERENCIA_VRT")});
        pergunta = s("Existe uma VRT para este CNPJ/Data de Referência, deseja substituí-la?");
    } else {
        // The series is compared as it stands in the file, five characters with its blanks.
        achada = m_comandos->valor("SELECT VRT.ID_VRT_MICRO FROM (VRT INNER JOIN VRT_INDIVIDUAL "
                                   "ON VRT.ID_VRT_MICRO = VRT_INDIVIDUAL.ID_VRT_MICRO) INNER JOIN NOTA_FISCAL_SAIDA "
                                   "ON VRT.ID_VRT_MICRO = NOTA_FISCAL_SAIDA.ID_VRT_MICRO "
                                   "WHERE NR_CNPJ_INTERNADOR = ? AND NR_NF_SAIDA = ? AND NR_SERIE_NF_SAIDA = ? "
                                   "AND NR_INSCRICAO_EST = ?",
                                   {campo("NR_CNPJ_INTERNADOR"), campo("NR_NF_SAIDA"), campo("NR_SERIE_NF_SAIDA"),
                                    campo("NR_INSCRICAO_EST")});
        pergunta = s("Existe uma VRT para Nota Fiscal deste CNPJ/Inscrição Estadual, deseja substituí-la?");
    }
    if (!achada.isValid()) {
        m_estado.IdVrtLida.clear();
        return true;
    }
    m_estado.IdVrtLida = achada.toString();
    if (MsgBox(pergunta, Msg::YesNo) != Msg::Yes)
        return false;
    // The replacement keeps the identification, so no number is taken; the rows go by the cascades.
    Cadastros::ExcluiVrt(m_estado.IdVrtLida);
    return true;
}

bool LeArquivoVrt::registro01(LinhasArquivo& linhas)
{
    QString linha;
    if (!leCabeca(linhas, 2, linha))
        return false;
    m_cabeca.defineLinha(2, linha);
    return true;
}

bool LeArquivoVrt::registro02(LinhasArquivo& linhas)
{
    QString linha;
    if (!leCabeca(linhas, 3, linha))
        return false;
    m_cabeca.defineLinha(3, linha);
    const QString indicador = m_cabeca.registro(3).texto(s("IND_MANDADO_JUDIC"));
    if (indicador != s("N") && indicador != s("S"))
        return erroCabecalho(s("Erro no registro 02 - Indicador de mandado judicial inválido!"));
    return true;
}

bool LeArquivoVrt::registro03(LinhasArquivo& linhas)
{
    QString linha;
    if (!leCabeca(linhas, 4, linha))
        return false;
    m_cabeca.defineLinha(4, linha);
    return true;
}

bool LeArquivoVrt::leItens(LinhasArquivo& linhas)
{
    static const QSet<QString> tiposItens = {s("11"), s("12"), s("13"), s("14"), s("21"), s("31"),
                                             s("32"), s("33"), s("34"), s("35"), s("36"), s("41")};
    ModGravaVrtMensal mensal(m_estado, *m_comandos, *m_cadastros);
    ModGravaVrtIndividual individual(m_estado, *m_comandos, *m_cadastros);
    while (!linhas.fim()) {
        QString linha = linhas.proxima();
        ++m_estado.ContaLinhas;
        m_tipoAtual = linha.left(2);
        avisaProgresso(m_estado.ContaLinhas, linhas.total());
        const QString tipo = linha.left(2);
        if (!tiposItens.contains(tipo))
            return m_estado.falha(tipo, s("Registro inesperado"), Msg::OKOnly);
        const bool ok = m_estado.declaracao == TipoDeclaracao::Mensal ? mensal.leRegistro(tipo, linha)
                                                                      : individual.leRegistro(tipo, linha);
        if (!ok)
            return false;
    }
    // A file that ended before its counted end was not read whole: nothing of it may stay.
    return !linhas.falhou() || falhaDeLeitura();
}

bool LeArquivoVrtEm(const QString& pasta, const QString& nome, ModoLeitura modo, ProgressoLeitura progresso)
{
    LeArquivoVrt leitura(pasta, nome, modo);
    leitura.defineProgresso(std::move(progresso));
    return leitura.executa();
}

bool LeArquivoVrtEm(QIODevice& arquivo, ModoLeitura modo, ProgressoLeitura progresso)
{
    LeArquivoVrt leitura(arquivo, modo);
    leitura.defineProgresso(std::move(progresso));
    return leitura.executa();
}
