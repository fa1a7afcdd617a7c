#pragma once
// "Importar VRT" and "Restaurar Backup": one declaration file read into the database.
//
//   QFile arquivo(caminho);                          // or a QBuffer: any QIODevice
//   LeArquivoVrt leitura(arquivo, ModoLeitura::Restaurar);
//   leitura.defineProgresso([&](qint64 lidas, qint64 total) { barra->setValue(100 * lidas / total); });
//   const ResultadoLeitura& r = leitura.le();        // the questions go through MsgBox, nothing else
//   if (!r.concluida) ... r.falha()->linha, r.falha()->registro, r.falha()->texto ...
//   LeArquivoVrt::mostra(r, ModoLeitura::Restaurar); // what the program shows: messages, then the report
//
// `executa()` does both. The reading is one transaction: a file that fails at any line, or a question answered
// No, leaves the database exactly as it was (no partial declaration, a declaration to be replaced still there,
// no number consumed). The report, or "Backup restaurado com o nome ...", only when the end of the file was
// reached and committed.
#include "core/file/reading/CabecalhoLido.h"
#include "core/file/reading/EstadoLeitura.h"

#include <QString>
#include <QVector>
#include <functional>
#include <memory>

class CadastrosLeitura;
class ComandosPreparados;
class LinhasArquivo;
class QIODevice;

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
    // What the reading has to tell besides its questions, in order; a reading that stopped ends with why.
    // Empty for a reading answered No, which ends without a word.
    QVector<MensagemLeitura> mensagens;
    // Why the reading stopped, or nullptr.
    const MensagemLeitura* falha() const { return concluida || mensagens.isEmpty() ? nullptr : &mensagens.last(); }
};

class LeArquivoVrt {
public:
    // Reads the device (opened for reading here when it is not open yet); it must outlive the reading.
    explicit LeArquivoVrt(QIODevice& arquivo, ModoLeitura modo = ModoLeitura::Importar);
    // Reads the file folder + "/" + name.
    LeArquivoVrt(const QString& pasta, const QString& nome, ModoLeitura modo = ModoLeitura::Importar);
    ~LeArquivoVrt();
    // Called as lines are read (not for every line), and once more at the end; the screen's bar hooks here.
    void defineProgresso(ProgressoLeitura progresso) { m_progresso = std::move(progresso); }
    // Reads the file; only the questions of the reading are asked through MsgBox.
    const ResultadoLeitura& le();
    // le(), then mostra(): true when the file was read to its end.
    bool executa();
    const ResultadoLeitura& resultado() const { return m_resultado; }

    // The outcome through the message seam: each message in order, then the report of an import or the name
    // of a restored backup when the reading was concluded.
    static void mostra(const ResultadoLeitura& r, ModoLeitura modo);
    // The report of an import, lines ended by CR.
    static QString relatorio(const ResultadoLeitura& r);

private:
    void leDentroDaTransacao(LinhasArquivo& linhas);
    bool leLinhasOuRecusa(LinhasArquivo& linhas);
    bool leLinhas(LinhasArquivo& linhas);
    // The head record expected at line `numero` into `linha`, its presence, length and type checked.
    bool leCabeca(LinhasArquivo& linhas, int numero, QString& linha);
    bool registro00(LinhasArquivo& linhas);
    bool registro01(LinhasArquivo& linhas);
    bool registro02(LinhasArquivo& linhas);
    bool registro03(LinhasArquivo& linhas);
    bool procuraDuplicada(const RegistroLido& r00);
    bool leItens(LinhasArquivo& linhas);
    void avisaProgresso(qint64 lidas, qint64 total, bool sempre = false);

    bool erroCabecalho(const QString& texto);
    // The file became shorter or unreadable while it was read.
    bool falhaDeLeitura();

    std::unique_ptr<QIODevice> m_arquivoProprio;  // the file of the path-taking constructor
    QIODevice* m_arquivo = nullptr;
    QString m_caminho;  // for the message of a file that cannot be opened
    QString m_cabecaAtual;  // the head record being read, for its messages
    ModoLeitura m_modo;
    ProgressoLeitura m_progresso;
    int m_ultimoPercentual = -1;
    ResultadoLeitura m_resultado;
    QString m_tipoAtual;  // record type of the line being read, for the refusal of a line the database refuses
    EstadoLeitura m_estado;
    ComandosPreparados* m_comandos = nullptr;
    CadastrosLeitura* m_cadastros = nullptr;
    // Records 00 to 03 as read; their rows go in once the four are read.
    CabecalhoLido m_cabeca;
};

// The same, in one call, with the outcome shown: true when the file was read to its end.
bool LeArquivoVrtEm(const QString& pasta, const QString& nome, ModoLeitura modo = ModoLeitura::Importar,
                    ProgressoLeitura progresso = {});
bool LeArquivoVrtEm(QIODevice& arquivo, ModoLeitura modo = ModoLeitura::Importar, ProgressoLeitura progresso = {});
