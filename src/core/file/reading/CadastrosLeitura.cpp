#include "core/file/reading/CadastrosLeitura.h"

#include "core/file/reading/EstadoLeitura.h"
#include "core/rules/Formatadores.h"
#include "core/session/MsgBox.h"
#include "core/store/ComandoSqlite.h"
#include "core/store/ComandosPreparados.h"

namespace {
// The key alone decides: any other refusal (a code or a name too long) still refuses the line.
const char* const InsereProduto =
    "INSERT INTO PRODUTO (CD_INT_PRODUTO, NM_INT_PRODUTO) VALUES (?, ?) ON CONFLICT (CD_INT_PRODUTO) DO NOTHING";
const char* const AlteraProduto =
    "UPDATE PRODUTO SET CD_INT_PRODUTO = ?, NM_INT_PRODUTO = ? WHERE CD_INT_PRODUTO = ?";
}  // namespace

CadastrosLeitura::CadastrosLeitura(ComandosPreparados& comandos, EstadoLeitura& estado)
    : m_comandos(comandos), m_estado(estado)
{
}

void CadastrosLeitura::zeraContadores()
{
    ProdutosCadastrados = 0;
    ProdutosAlterados = 0;
    UnidadesCadastradas = 0;
}

ComandoSqlite& CadastrosLeitura::comando(ComandoSqlite*& guardado, const char* sql)
{
    if (!guardado)
        guardado = &m_comandos.comando(QString::fromUtf8(sql));
    return *guardado;
}

void CadastrosLeitura::alteraProduto(const QString& codigo, const QString& nome)
{
    ComandoSqlite& altera = comando(m_alteraProduto, AlteraProduto);
    altera.inicia();
    altera.ligaTexto(0, codigo);
    altera.ligaTexto(1, nome);
    altera.ligaTexto(2, codigo);
    m_comandos.executaLigado(altera);
}

bool CadastrosLeitura::RegistraProduto(const QString& codigo, const QString& nome)
{
    const QString cod = Funcoes::TiraBrancos(codigo);
    const QString nm = Funcoes::TiraBrancos(nome);
    const auto conhecido = m_produtos.constFind(cod);
    if (conhecido != m_produtos.constEnd()) {
        if (conhecido.value() != nm) {
            alteraProduto(cod, nm);
            m_produtos.insert(cod, nm);
        }
        ++ProdutosAlterados;
        return true;
    }
    // One statement where a search and then an insertion were two: a row written means a new product.
    ComandoSqlite& insere = comando(m_insereProduto, InsereProduto);
    insere.inicia();
    insere.ligaTexto(0, cod);
    insere.ligaTexto(1, nm);
    const MarcaEscrita antes = ComandoSqlite::marcaEscrita();
    m_comandos.executaLigado(insere);
    if (ComandoSqlite::marcaEscrita() != antes) {
        ++ProdutosCadastrados;
    } else {
        alteraProduto(cod, nm);
        ++ProdutosAlterados;
    }
    m_produtos.insert(cod, nm);
    return true;
}

bool CadastrosLeitura::RegistraUnidade(QString& nome)
{
    nome.remove(QChar(160));
    nome.remove(QLatin1Char(' '));
    if (nome.isEmpty() || m_unidades.contains(nome))
        return true;
    if (m_comandos.existe("SELECT 1 FROM UNIDADE_MEDIDA WHERE NM_MEDIDA = ?", {nome})) {
        m_unidades.insert(nome);
        return true;
    }
    for (int codigo = 1; codigo <= 99; ++codigo) {
        const QString cd = QString::number(codigo).rightJustified(2, QLatin1Char('0'));
        if (m_comandos.existe("SELECT 1 FROM UNIDADE_MEDIDA WHERE CD_UNID_MEDIDA = ?", {cd}))
            continue;
        m_comandos.executa("INSERT INTO UNIDADE_MEDIDA (CD_UNID_MEDIDA, NM_MEDIDA) VALUES (?, ?)", {cd, nome});
        ++UnidadesCadastradas;
        m_unidades.insert(nome);
        return true;
    }
    return m_estado.falha(QString(), QStringLiteral("Limite máximo de unidades de medidas cadastradas foi atindigo."),
                          Msg::Critical, QStringLiteral("Erro de Importação"));
}

bool CadastrosLeitura::ExisteProduto(const QString& codigo)
{
    if (m_produtos.contains(codigo))
        return true;
    return m_comandos.existe("SELECT 1 FROM PRODUTO WHERE CD_INT_PRODUTO = ?", {ComandosPreparados::texto(codigo)});
}

bool CadastrosLeitura::ExisteNcm(const QString& codigo)
{
    const auto it = m_ncm.constFind(codigo);
    if (it != m_ncm.constEnd())
        return it.value();
    const bool existe =
        m_comandos.existe("SELECT 1 FROM NCM_ITEM WHERE CD_NCM_PRODUTO = ?", {ComandosPreparados::texto(codigo)});
    m_ncm.insert(codigo, existe);
    return existe;
}
