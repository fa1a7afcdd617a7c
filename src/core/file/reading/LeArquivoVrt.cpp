#include "core/file/reading/LeArquivoVrt.h"

#include "core/file/reading/CadastrosLeitura.h"
#include "core/file/reading/ComandosPreparados.h"
#include "core/file/numbering/GeraIdentificacao.h"
#include "core/file/layout/RegistroLido.h"
#include "core/file/layout/LinhasArquivo.h"
#include "core/file/reading/ModGravaVrtIndividual.h"
#include "core/file/reading/ModGravaVrtMensal.h"
#include "core/file/layout/SlotsValores.h"
#include "core/rules/Formatadores.h"
#include "core/session/MsgBox.h"
#include "core/store/modBancoDados.h"

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
const QString ZerosValor = QString(SlotsValores::TamanhoValor, QLatin1Char('0'));

bool erroCabecalho(const QString& texto)
{
    MsgBox(texto, Msg::Critical);
    return false;
}
}  // namespace

LeArquivoVrt::LeArquivoVrt(const QString& pasta, const QString& nome, ModoLeitura modo)
    : m_caminho(pasta.isEmpty() ? nome : pasta + QLatin1Char('/') + nome), m_modo(modo)
{
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
    m_resultado = ResultadoLeitura();
    LinhasArquivo linhas;
    if (!linhas.abre(m_caminho))
        return erroCabecalho(s("Não foi possível abrir o arquivo ") + m_caminho + s("."));
    if (linhas.fim())
        return erroCabecalho(s("Erro - Arquivo sem registros!"));

    bool concluida = false;
    {
        ComandosPreparados comandos;
        CadastrosLeitura cadastros(comandos);
        m_comandos = &comandos;
        m_cadastros = &cadastros;
        // One transaction for the whole file: a failure anywhere rolls back everything, the number taken and
        // the deletion of a replaced declaration included.
        modBancoDados::Transacao transacao;
        concluida = leLinhas(linhas);
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
        return false;
    }
    m_resultado.concluida = true;
    m_resultado.IdVrtLida = m_estado.IdVrtLida;
    avisaProgresso(linhas.total(), linhas.total(), true);
    if (m_modo == ModoLeitura::Restaurar)
        MsgBox(s("Backup restaurado com o nome ") + m_estado.IdVrtLida, Msg::Information);
    else
        MsgBox(relatorio(m_resultado), Msg::Information);
    return true;
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

bool LeArquivoVrt::leLinhas(LinhasArquivo& linhas)
{
    if (!registro00(linhas) || !registro01(linhas))
        return false;
    if (m_estado.IdVrtLida.isEmpty())
        m_estado.IdVrtLida = Funcoes::GeraIdentificacao();
    m_mandado = s("N");
    m_retificacao = s("N");
    m_nrVrt.clear();
    m_processo.clear();
    gravaCabecalho();
    avisaProgresso(m_estado.ContaLinhas, linhas.total());
    if (!registro02(linhas) || !registro03(linhas))
        return false;
    m_comandos->executa("UPDATE VRT SET IND_MANDADO_JUDIC = ?, IND_RESTITUICAO = 'N', IND_RETIFICACAO = ?, "
                        "NR_VRT = ?, NR_PROC_ADM_FISCAL = ? WHERE ID_VRT_MICRO = ?",
                        {tx(m_mandado), tx(m_retificacao), tx(m_nrVrt), tx(m_processo), m_estado.IdVrtLida});
    avisaProgresso(m_estado.ContaLinhas, linhas.total());
    m_cadastros->zeraContadores();

    if (m_estado.declaracao == TipoDeclaracao::Individual) {
        m_comandos->executa("INSERT INTO NOTA_FISCAL_SAIDA (ID_VRT_MICRO, NR_SERIE_NF_SAIDA, NR_NF_SAIDA, "
                            "DT_EMISS_NF_SAIDA, DT_SAIDA_NF_SAIDA, CD_OP_FISCAL, CD_TIPO_DESTINAT, NR_DESTINAT, "
                            "CD_UF_DESTINO) VALUES (?, ?, ?, ?, ?, ?, ?, ?, ?)",
                            {m_estado.IdVrtLida, tx(m_serie), tx(m_numeroNf), tx(m_emissao), tx(m_saida), tx(m_cfop),
                             tx(m_tipoDestinatario), tx(m_destinatario), tx(m_uf)});
        m_estado.idNfs = m_comandos->valor("SELECT ID_NFS FROM NOTA_FISCAL_SAIDA WHERE ID_VRT_MICRO = ?",
                                           {m_estado.IdVrtLida});
        if (!m_estado.idNfs.isValid())
            return erroCabecalho(s("ERRO NA RECUPERAÇÃO DO REGISTRO 01 DA INDIVIDUAL"));
    }
    return leItens(linhas);
}

bool LeArquivoVrt::registro00(LinhasArquivo& linhas)
{
    const QString linha = linhas.proxima();
    ++m_estado.ContaLinhas;
    if (linha.size() != 61)
        return erroCabecalho(s("Erro no registro 00 - Tamanho inválido!"));
    if (linha.left(2) != s("00"))
        return erroCabecalho(s("Erro no ") + QString::number(m_estado.ContaLinhas) +
                             s("º registro - Tipo de registro não é 00!"));
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

    const RegistroLido r(linha, LayoutRegistro::de(TipoDeclaracao::Mensal, s("00")));
    if (r.texto(s("VERSAO_LAYOUT")) != s("02.00"))
        return erroCabecalho(s("Erro no registro 00 - Versão do sistema!"));
    m_estado.TipoVrtLida = r.texto(s("CD_TIPO_VRT"));
    if (m_estado.TipoVrtLida != s("1") && m_estado.TipoVrtLida != s("2"))
        return erroCabecalho(s("Erro no registro 00 - Tipo VRT inválido!"));
    m_estado.declaracao = m_estado.TipoVrtLida == s("1") ? TipoDeclaracao::Individual : TipoDeclaracao::Mensal;

    const QString aaaamm = r.texto(s("DT_REFERENCIA_VRT"));
    m_referencia = aaaamm.mid(4, 2) + aaaamm.left(4);
    m_inscricao = Funcoes::ZeroEsquerda(r.texto(s("NR_INSCRICAO_EST")), 14);
    m_numeroNf = Funcoes::ZeroEsquerda(r.texto(s("NR_NF_SAIDA")), 6);
    m_serie = Funcoes::BrancoDireita(r.texto(s("NR_SERIE_NF_SAIDA")), 5);
    m_cnpj = r.texto(s("NR_CNPJ_INTERNADOR"));
    if (RegistroLido::soZeros(m_cnpj))
        return erroCabecalho(s("Erro no registro 00 - CNPJ inválido!"));
    return procuraDuplicada();
}

bool LeArquivoVrt::procuraDuplicada()
{
    QVariant achada;
    QString pergunta;
    if (m_estado.declaracao == TipoDeclaracao::Mensal) {
        achada = m_comandos->valor("SELECT VRT.ID_VRT_MICRO FROM VRT INNER JOIN VRT_MENSAL "
                                   "ON VRT.ID_VRT_MICRO = VRT_MENSAL.ID_VRT_MICRO "
                                   "WHERE NR_CNPJ_INTERNADOR = ? AND DT_REFERENCIA_VRT = ?",
                                   {tx(m_cnpj), tx(m_referencia)});
        pergunta = s("Existe uma VRT para este CNPJ/Data de Referência, deseja substituí-la?");
    } else {
        // The series is compared as it stands in the file, five characters with its blanks.
        achada = m_comandos->valor("SELECT VRT.ID_VRT_MICRO FROM (VRT INNER JOIN VRT_INDIVIDUAL "
                                   "ON VRT.ID_VRT_MICRO = VRT_INDIVIDUAL.ID_VRT_MICRO) INNER JOIN NOTA_FISCAL_SAIDA "
                                   "ON VRT.ID_VRT_MICRO = NOTA_FISCAL_SAIDA.ID_VRT_MICRO "
                                   "WHERE NR_CNPJ_INTERNADOR = ? AND NR_NF_SAIDA = ? AND NR_SERIE_NF_SAIDA = ? "
                                   "AND NR_INSCRICAO_EST = ?",
                                   {tx(m_cnpj), tx(m_numeroNf), tx(m_serie), tx(m_inscricao)});
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
    m_comandos->executa("DELETE FROM VRT WHERE ID_VRT_MICRO = ?", {m_estado.IdVrtLida});
    return true;
}

bool LeArquivoVrt::registro01(LinhasArquivo& linhas)
{
    if (linhas.fim())
        return erroCabecalho(s("Erro no arquivo - Não foi localizado o registro 01!"));
    const QString linha = linhas.proxima();
    ++m_estado.ContaLinhas;
    if (linha.size() != 113)
        return erroCabecalho(s("Erro no registro 01 - Tamanho inválido!"));
    if (linha.left(2) != s("01"))
        return erroCabecalho(s("Erro no ") + QString::number(m_estado.ContaLinhas) +
                             s("º registro - Tipo de registro não é 01!"));
    const RegistroLido r(linha, LayoutRegistro::de(TipoDeclaracao::Mensal, s("01")));
    const auto data = [&r](const char* campo) {
        const QString d = r.texto(s(campo));
        return d == s("00000000") ? d : RegistroLido::dataDoArquivo(d);
    };
    m_emissao = data("DT_EMISS_NF_SAIDA");
    m_saida = data("DT_SAIDA_NF_SAIDA");
    m_cfop = Funcoes::ZeroEsquerda(r.texto(s("CD_OP_FISCAL")), 4);
    m_tipoDestinatario = r.texto(s("CD_TIPO_DESTINAT"));
    m_destinatario = r.aparado(s("NR_DESTINAT"));
    m_uf = r.texto(s("CD_UF_DESTINO"));
    m_saidaAlc = r.texto(s("IN_SAIDA_ALC_AO"));
    m_banco = r.semZeros(s("NR_BANCO_ARREC"));
    m_agencia = r.semZeros(s("NR_AG_BCO_ARREC"));
    m_conta = r.semZeros(s("NR_CC_AG_BCO_ARREC"));
    return true;
}

void LeArquivoVrt::gravaCabecalho()
{
    m_comandos->executa("INSERT INTO VRT (ID_VRT_MICRO, CD_TIPO_VRT, NR_CNPJ_INTERNADOR, IND_MANDADO_JUDIC, "
                        "NR_BANCO_ARREC, NR_AG_BCO_ARREC, NR_CC_AG_BCO_ARREC, NR_INSCRICAO_EST, NR_VRT, "
                        "NR_PROC_ADM_FISCAL, IND_RESTITUICAO, IND_RETIFICACAO) "
                        "VALUES (?, ?, ?, 'N', ?, ?, ?, ?, '', '', 'N', 'N')",
                        {m_estado.IdVrtLida, m_estado.TipoVrtLida, tx(m_cnpj), tx(m_banco), tx(m_agencia),
                         tx(m_conta), tx(m_inscricao)});
    if (m_estado.declaracao == TipoDeclaracao::Individual)
        m_comandos->executa("INSERT INTO VRT_INDIVIDUAL (ID_VRT_MICRO, IN_SAIDA_ALC_AO) VALUES (?, ?)",
                            {m_estado.IdVrtLida, tx(m_saidaAlc)});
    else
        m_comandos->executa("INSERT INTO VRT_MENSAL (ID_VRT_MICRO, DT_REFERENCIA_VRT) VALUES (?, ?)",
                            {m_estado.IdVrtLida, tx(m_referencia)});
}

bool LeArquivoVrt::registro02(LinhasArquivo& linhas)
{
    if (linhas.fim())
        return erroCabecalho(s("Erro no arquivo - Não foi localizado o registro 02!"));
    const QString linha = linhas.proxima();
    ++m_estado.ContaLinhas;
    if (linha.size() != 563)
        return erroCabecalho(s("Erro no registro 02 - Tamanho inválido!"));
    if (linha.left(2) != s("02"))
        return erroCabecalho(s("Erro no ") + QString::number(m_estado.ContaLinhas) +
                             s("º registro - Tipo de registro não é 02!"));
    const QString indicador = linha.mid(2, 1);
    if (indicador != s("N") && indicador != s("S"))
        return erroCabecalho(s("Erro no registro 02 - Indicador de mandado judicial inválido!"));
    m_mandado = indicador;
    GravaValoresMandado(linha);
    return true;
}

bool LeArquivoVrt::registro03(LinhasArquivo& linhas)
{
    if (linhas.fim())
        return erroCabecalho(s("Erro no arquivo - Não foi localizado o registro 03!"));
    const QString linha = linhas.proxima();
    ++m_estado.ContaLinhas;
    if (linha.size() != 524)
        return erroCabecalho(s("Erro no registro 03 - Tamanho inválido!"));
    if (linha.left(2) != s("03"))
        return erroCabecalho(s("Erro no ") + QString::number(m_estado.ContaLinhas) +
                             s("º registro - Tipo de registro não é 03!"));
    const RegistroLido r(linha, LayoutRegistro::de(TipoDeclaracao::Mensal, s("03")));
    m_processo = r.texto(s("NR_PROC_ADM_FISCAL"));
    if (r.zeros(s("NR_VRT"))) {
        // Not a rectification: its slots are not read, and the process number keeps its zeros.
        m_nrVrt.clear();
        m_retificacao = s("N");
        return true;
    }
    m_nrVrt = r.texto(s("NR_VRT"));
    m_retificacao = s("S");
    GravaValoresRetif(linha);
    return true;
}

void LeArquivoVrt::GravaValoresMandado(const QString& linha)
{
    // The flag decides, not the value: a value of zero under "S" comes back as "0,00".
    for (const SlotValor& slot : SlotsValores::mandado()) {
        if (linha.mid(slot.posicaoIndicador - 1, 1) != s("S"))
            continue;
        const QString valor = linha.mid(slot.posicaoValor - 1, SlotsValores::TamanhoValor);
        const QString guardado =
            valor == ZerosValor ? s("0,00") : Funcoes::InsereVirgula(Funcoes::TiraZerosEsquerda(valor), 2);
        m_comandos->executa("INSERT INTO VALORES_DIVER_MANDADO (ID_VRT_MICRO, CD_MOD_MANDADO, CD_TIPO_DIVER_MANDADO, "
                            "VL_TOTAL_DIVER_MANDADO, NM_MOD_INT_MANDADO, NM_TIPO_DIVER_MANDADO) "
                            "VALUES (?, ?, ?, ?, ?, ?)",
                            {m_estado.IdVrtLida, QString::number(slot.cdMod), QString::number(slot.cdTipo),
                             tx(guardado), slot.nmMod, slot.nmTipo});
    }
}

void LeArquivoVrt::GravaValoresRetif(const QString& linha)
{
    // A zero value has no row after reading: record 03 has no flag to tell it from an absent one.
    for (const SlotValor& slot : SlotsValores::retif()) {
        const QString valor = linha.mid(slot.posicaoValor - 1, SlotsValores::TamanhoValor);
        if (valor == ZerosValor)
            continue;
        m_comandos->executa("INSERT INTO VALORES_DIVER_RETIF (ID_VRT_MICRO, CD_MOD_RETIF, CD_TIPO_DIVER_RETIF, "
                            "VL_TOTAL_DIVER_RETIF, NM_MOD_INT_RETIF, NM_TIPO_DIVER_RETIF) VALUES (?, ?, ?, ?, ?, ?)",
                            {m_estado.IdVrtLida, QString::number(slot.cdMod), QString::number(slot.cdTipo),
                             tx(Funcoes::InsereVirgula(Funcoes::TiraZerosEsquerda(valor), 2)), slot.nmMod,
                             slot.nmTipo});
    }
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
        avisaProgresso(m_estado.ContaLinhas, linhas.total());
        const QString tipo = linha.left(2);
        if (!tiposItens.contains(tipo)) {
            MsgBox(s("Registro inesperado"), Msg::OKOnly);
            return false;
        }
        const bool ok = m_estado.declaracao == TipoDeclaracao::Mensal ? mensal.leRegistro(tipo, linha)
                                                                      : individual.leRegistro(tipo, linha);
        if (!ok)
            return false;
    }
    return true;
}

bool LeArquivoVrtEm(const QString& pasta, const QString& nome, ModoLeitura modo, ProgressoLeitura progresso)
{
    LeArquivoVrt leitura(pasta, nome, modo);
    leitura.defineProgresso(std::move(progresso));
    return leitura.executa();
}
