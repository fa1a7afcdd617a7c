#pragma once
// "Importar VRT" and "Restaurar Backup": one declaration file read into the database.
//
//   LeArquivoVrt leitura(pasta, nome, ModoLeitura::Restaurar);
//   leitura.defineProgresso([&](qint64 lidas, qint64 total) { barra->setValue(100 * lidas / total); });
//   if (leitura.executa()) ... leitura.resultado().IdVrtLida ...
//
// The reading is one transaction: a file that fails at any line, or a question answered No, leaves the database
// exactly as it was (no partial declaration, a declaration to be replaced still there, no number consumed).
// Every message goes through MsgBox; the report, or "Backup restaurado com o nome ...", only when the end of
// the file was reached and committed.
#include "core/file/reading/EstadoLeitura.h"

#include <QString>
#include <functional>

class CadastrosLeitura;
class ComandosPreparados;
class LinhasArquivo;

// The caption of the command: "Importar VRT" or "Restaurar Backup".
enum class ModoLeitura { Importar, Restaurar };

using ProgressoLeitura = std::function<void(qint64 lidas, qint64 total)>;

struct ResultadoLeitura {
    bool concluida = false;  // the end of the file was reached and the rows committed
    QString IdVrtLida;
    int ContaLinhas = 0;
    int ProdutosCadastrados = 0;
    int ProdutosAlterados = 0;
    int UnidadesCadastradas = 0;
};

class LeArquivoVrt {
public:
    // Reads folder + "/" + name.
    LeArquivoVrt(const QString& pasta, const QString& nome, ModoLeitura modo = ModoLeitura::Importar);
    ~LeArquivoVrt();
    // Called as lines are read (not for every line), and once more at the end; the screen's bar hooks here.
    void defineProgresso(ProgressoLeitura progresso) { m_progresso = std::move(progresso); }
    bool executa();
    const ResultadoLeitura& resultado() const { return m_resultado; }

    // The report of an import, lines ended by CR.
    static QString relatorio(const ResultadoLeitura& r);

private:
    bool leLinhas(LinhasArquivo& linhas);
    bool registro00(LinhasArquivo& linhas);
    bool registro01(LinhasArquivo& linhas);
    bool registro02(LinhasArquivo& linhas);
    bool registro03(LinhasArquivo& linhas);
    bool procuraDuplicada();
    void gravaCabecalho();
    void GravaValoresMandado(const QString& linha);
    void GravaValoresRetif(const QString& linha);
    bool leItens(LinhasArquivo& linhas);
    void avisaProgresso(qint64 lidas, qint64 total, bool sempre = false);

    QString m_caminho;
    ModoLeitura m_modo;
    ProgressoLeitura m_progresso;
    int m_ultimoPercentual = -1;
    ResultadoLeitura m_resultado;
    EstadoLeitura m_estado;
    ComandosPreparados* m_comandos = nullptr;
    CadastrosLeitura* m_cadastros = nullptr;

    // Head fields of records 00 to 03.
    QString m_referencia;  // mmyyyy
    QString m_inscricao, m_serie, m_numeroNf, m_cnpj;
    QString m_emissao, m_saida, m_cfop, m_tipoDestinatario, m_destinatario, m_uf, m_saidaAlc;
    QString m_banco, m_agencia, m_conta;
    QString m_mandado = QStringLiteral("N"), m_retificacao = QStringLiteral("N");
    QString m_nrVrt, m_processo;
};

// The same, in one call: true when the file was read to its end.
bool LeArquivoVrtEm(const QString& pasta, const QString& nome, ModoLeitura modo = ModoLeitura::Importar,
                    ProgressoLeitura progresso = {});
