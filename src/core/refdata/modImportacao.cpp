#include "core/refdata/modImportacao.h"

#include "core/rules/Formatadores.h"
#include "core/session/MsgBox.h"
#include "core/session/modVRTPLN.h"
#include "core/store/ComandoSqlite.h"
#include "core/store/ComandosPreparados.h"
#include "core/store/modBancoDados.h"

#include <QFile>
#include <QStringDecoder>
#include <QStringView>

namespace modImportacao {

namespace {

const QString TextoSemRegistros = QStringLiteral("Erro no Header - Arquivo sem registros!");
const QString TextoFormatoErrado = QStringLiteral("Erro - Arquivo com formato errado!");
const QString TextoRegistroInesperado = QStringLiteral("Registro inesperado!");

// Positions counted from 1, as the table layouts give them; a short line yields what it has, like Mid.
QString campo(QStringView linha, int posicao, int tamanho)
{
    return linha.mid(posicao - 1, tamanho).toString();
}

// The name of a line goes through TrocaApostrofo so that a quote never reaches a statement, as the system did.
QString nome(QStringView linha, int posicao, int tamanho)
{
    return Funcoes::TrocaApostrofo(campo(linha, posicao, tamanho), QStringLiteral("'"));
}

// The header's positions 1-9 name the system; position 10 "1", "2" or "3" marks a declaration file.
bool cabecalhoValido(QStringView linha)
{
    if (!linha.startsWith(u"00VRT/PLN"))
        return false;
    const QStringView digito = linha.mid(9, 1);
    return digito != u"1" && digito != u"2" && digito != u"3";
}

// The file's lines: CR LF, CR or LF end a line, and a line end at the very end makes no empty last line.
QList<QStringView> divideLinhas(const QString& texto)
{
    QList<QStringView> linhas;
    const QStringView v(texto);
    qsizetype inicio = 0;
    const qsizetype n = v.size();
    for (qsizetype i = 0; i < n; ++i) {
        const QChar c = v.at(i);
        if (c == QLatin1Char('\r') || c == QLatin1Char('\n')) {
            linhas.append(v.mid(inicio, i - inicio));
            if (c == QLatin1Char('\r') && i + 1 < n && v.at(i + 1) == QLatin1Char('\n'))
                ++i;
            inicio = i + 1;
        }
    }
    if (inicio < n)
        linhas.append(v.mid(inicio));
    return linhas;
}

const QString InsereMoeda = QStringLiteral("INSERT INTO MOEDA (CD_MOEDA, NM_MOEDA) VALUES (?, ?)");
// A code already in the table has its other columns changed, a new one is inserted: one statement, where a
// search and then an insertion or a change were two.
const QString GravaNcm = QStringLiteral(
    "INSERT INTO NCM_ITEM (CD_NCM_PRODUTO, DESCR_NCM_PRODUTO, NM_UNID_MED_EST) VALUES (?, ?, ?) "
    "ON CONFLICT (CD_NCM_PRODUTO) DO UPDATE SET DESCR_NCM_PRODUTO = excluded.DESCR_NCM_PRODUTO, "
    "NM_UNID_MED_EST = excluded.NM_UNID_MED_EST");
const QString GravaProduto = QStringLiteral(
    "INSERT INTO PRODUTO (CD_INT_PRODUTO, NM_INT_PRODUTO) VALUES (?, ?) "
    "ON CONFLICT (CD_INT_PRODUTO) DO UPDATE SET NM_INT_PRODUTO = excluded.NM_INT_PRODUTO");
const QString InsereUf = QStringLiteral("INSERT INTO UNIDADE_FEDERATIVA (CD_UF_DESTINO, NM_UF) VALUES (?, ?)");
const QString InsereUnidade = QStringLiteral("INSERT INTO UNIDADE_MEDIDA (CD_UNID_MEDIDA, NM_MEDIDA) VALUES (?, ?)");

class Importacao {
public:
    // Imports one line after the header; false for a line of an unknown type.
    bool importa(QStringView linha)
    {
        const QStringView tipo = linha.left(2);
        if (tipo == u"01") {
            limpaUmaVez(QStringLiteral("DELETE FROM MOEDA"));
            m_c.executa(InsereMoeda, {campo(linha, 3, 3), nome(linha, 6, 35)});
        } else if (tipo == u"02") {
            ComandoSqlite& c = comando(m_gravaNcm, GravaNcm);
            c.inicia();
            c.ligaTexto(0, linha.mid(2, 8));
            c.ligaTexto(1, nome(linha, 11, 80));
            c.ligaTexto(2, nome(linha, 91, 50));
            m_c.executaLigado(c);
        } else if (tipo == u"03") {
            // The code is compared with its trailing blanks, exactly as it stands in the file; the key's index
            // finds it, where the old routine walked the whole table for every line.
            ComandoSqlite& c = comando(m_gravaProduto, GravaProduto);
            c.inicia();
            c.ligaTexto(0, linha.mid(2, 15));
            c.ligaTexto(1, nome(linha, 18, 80));
            m_c.executaLigado(c);
        } else if (tipo == u"04") {
            limpaUmaVez(QStringLiteral("DELETE FROM UNIDADE_FEDERATIVA"));
            m_c.executa(InsereUf, {campo(linha, 3, 2), nome(linha, 5, 25)});
        } else if (tipo == u"05") {
            // Units are always inserted: the update branch of the old routine could never be chosen.
            limpaUmaVez(QStringLiteral("DELETE FROM UNIDADE_MEDIDA"));
            m_c.executa(InsereUnidade, {campo(linha, 3, 2), nome(linha, 5, 50)});
        } else {
            return false;
        }
        m_ultimoTipo = tipo.toString();
        return true;
    }

    QString ultimoTipo() const { return m_ultimoTipo; }

private:
    ComandoSqlite& comando(ComandoSqlite*& guardado, const QString& sql)
    {
        if (!guardado)
            guardado = &m_c.comando(sql);
        return *guardado;
    }

    // One flag serves the three replaced tables: only the first of them that a file meets is emptied, and the
    // lines of the others are inserted over what those tables hold.
    void limpaUmaVez(const QString& sql)
    {
        if (m_tabelaLimpa)
            return;
        m_c.executa(sql, {});
        m_tabelaLimpa = true;
    }

    // A failed statement rolls the import back first and then ends the run, as the import routines always did.
    ComandosPreparados m_c{ComandosPreparados::AntesDeFalhar::DesfazTransacao};
    ComandoSqlite* m_gravaNcm = nullptr;
    ComandoSqlite* m_gravaProduto = nullptr;
    bool m_tabelaLimpa = false;
    QString m_ultimoTipo;
};

}  // namespace

QString NomeTabela(const QString& tipo)
{
    if (tipo == QLatin1String("01"))
        return QStringLiteral("moeda");
    if (tipo == QLatin1String("02"))
        return QStringLiteral("NCM");
    if (tipo == QLatin1String("03"))
        return QStringLiteral("produto");
    if (tipo == QLatin1String("04"))
        return QStringLiteral("unidade da federação");
    if (tipo == QLatin1String("05"))
        return QStringLiteral("unidade de medida comercial");
    return QString();
}

Resultado ImportaTabela(const QString& pasta, const QString& nomeArquivo, const Progresso& progresso)
{
    QFile arquivo(pasta + QLatin1Char('/') + nomeArquivo);
    if (!arquivo.open(QIODevice::ReadOnly)) {
        MsgBox(QStringLiteral("Não foi possível abrir o arquivo ") + arquivo.fileName() + QStringLiteral("."),
               Msg::Critical);
        return Resultado::ArquivoInacessivel;
    }
    const QByteArray bytes = arquivo.readAll();
    arquivo.close();
    if (bytes.isEmpty()) {
        MsgBox(TextoSemRegistros, Msg::Critical);
        return Resultado::SemRegistros;
    }

    // Table files are Windows-1252 text, like the declaration files.
    QStringDecoder decodificador("windows-1252");
    const QString texto = decodificador.decode(bytes);
    const QList<QStringView> linhas = divideLinhas(texto);

    if (linhas.isEmpty() || !cabecalhoValido(linhas.first())
        || modVRTPLN::ArquivoImportaTabela != QLatin1String("SIM")) {
        MsgBox(TextoFormatoErrado, Msg::Critical, TituloPadrao);
        return Resultado::FormatoErrado;
    }

    // One transaction for the whole file: one write to disk however many lines it holds.
    modBancoDados::IniciaTransacao();
    Importacao importacao;
    const qsizetype total = linhas.size();
    int ultimoPercentual = -1;
    for (qsizetype i = 1; i < total; ++i) {
        if (!importacao.importa(linhas.at(i))) {
            // What was imported before the unexpected line stays.
            modBancoDados::ConfirmaTransacao();
            MsgBox(TextoRegistroInesperado, Msg::Critical);
            if (progresso)
                progresso(0);
            return Resultado::RegistroInesperado;
        }
        if (progresso) {
            const int percentual = int(i * 100 / total);
            if (percentual != ultimoPercentual) {
                ultimoPercentual = percentual;
                progresso(percentual);
            }
        }
    }
    modBancoDados::ConfirmaTransacao();
    if (progresso)
        progresso(100);
    MsgBox(QStringLiteral("Tabela de ") + NomeTabela(importacao.ultimoTipo())
               + QStringLiteral(" importada com sucesso."),
           Msg::OKOnly);
    return Resultado::Sucesso;
}

}  // namespace modImportacao
