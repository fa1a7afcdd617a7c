#pragma once
// The reference rows that reading a declaration file looks up and registers on its way: products (always
// taking the file's name), units of measure (with their 99 codes), NCM codes that must already exist.
// The lookups are remembered for the run: inside the reading's transaction nobody else changes these tables,
// so a product seen before needs no second statement to give the same outcome.
#include <QHash>
#include <QSet>
#include <QString>

class ComandosPreparados;
class ComandoSqlite;
struct EstadoLeitura;

class CadastrosLeitura {
public:
    // Messages go to the reading's state.
    CadastrosLeitura(ComandosPreparados& comandos, EstadoLeitura& estado);

    // The product with this code gets this name: updated when it exists (counted as changed, also when the
    // name is the same), inserted otherwise (counted as registered). Code and name are trimmed. The result
    // tells whether the record may go on.
    bool RegistraProduto(const QString& codigo, const QString& nome);
    // Looks the unit up without any blank or character 160 (`nome` is changed in place) and registers it
    // under the first free code from "01" to "99". False, with its message, when all 99 are in use.
    bool RegistraUnidade(QString& nome);
    bool ExisteProduto(const QString& codigo);
    bool ExisteNcm(const QString& codigo);

    void zeraContadores();
    int ProdutosCadastrados = 0;
    int ProdutosAlterados = 0;
    int UnidadesCadastradas = 0;

private:
    // The statement of `sql` from the reading's cache, looked up once.
    ComandoSqlite& comando(ComandoSqlite*& guardado, const char* sql);
    void alteraProduto(const QString& codigo, const QString& nome);

    ComandosPreparados& m_comandos;
    ComandoSqlite* m_insereProduto = nullptr;
    ComandoSqlite* m_alteraProduto = nullptr;
    EstadoLeitura& m_estado;
    QHash<QString, QString> m_produtos;  // code -> name now in PRODUTO
    QSet<QString> m_unidades;            // names known to be in UNIDADE_MEDIDA
    QHash<QString, bool> m_ncm;
};
