#include "core/file/reading/CadastrosLeitura.h"

#include "core/file/reading/ComandosPreparados.h"
#include "core/session/MsgBox.h"

CadastrosLeitura::CadastrosLeitura(ComandosPreparados& comandos) : m_comandos(comandos) {}

void CadastrosLeitura::zeraContadores()
{
    ProdutosCadastrados = 0;
    ProdutosAlterados = 0;
    UnidadesCadastradas = 0;
}

bool CadastrosLeitura::RegistraProduto(const QString& codigo, const QString& nome)
{
    const QString cod = codigo.trimmed();
    const QString nm = nome.trimmed();
    const auto conhecido = m_produtos.constFind(cod);
    if (conhecido != m_produtos.constEnd()) {
        if (conhecido.value() != nm) {
            m_comandos.executa("UPDATE PRODUTO SET CD_INT_PRODUTO = ?, NM_INT_PRODUTO = ? WHERE CD_INT_PRODUTO = ?",
                               {ComandosPreparados::texto(cod), ComandosPreparados::texto(nm),
                                ComandosPreparados::texto(cod)});
            m_produtos.insert(cod, nm);
        }
        ++ProdutosAlterados;
        return true;
    }
    if (ExisteProduto(cod)) {
        m_comandos.executa("UPDATE PRODUTO SET CD_INT_PRODUTO = ?, NM_INT_PRODUTO = ? WHERE CD_INT_PRODUTO = ?",
                           {ComandosPreparados::texto(cod), ComandosPreparados::texto(nm),
                            ComandosPreparados::texto(cod)});
        ++ProdutosAlterados;
    } else {
        m_comandos.executa("INSERT INTO PRODUTO (CD_INT_PRODUTO, NM_INT_PRODUTO) VALUES (?, ?)",
                           {ComandosPreparados::texto(cod), ComandosPreparados::texto(nm)});
        ++ProdutosCadastrados;
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
    MsgBox(QStringLiteral("Limite máximo de unidades de medidas cadastradas foi atindigo."), Msg::Critical,
           QStringLiteral("Erro de Importação"));
    return false;
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
