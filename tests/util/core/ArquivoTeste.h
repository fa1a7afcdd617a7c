#pragma once
// Declaration file lines composed by hand for the reader tests: a line of blanks of the record's length with
// each field put at its column, so that a test reads like the layout tables it checks. Never the writer's.
#include "TestUtil.h"
#include <QBuffer>
#include <QByteArray>
#include <QDate>
#include <QFile>
#include <QPair>
#include <QString>
#include <QStringEncoder>
#include <QStringList>
#include <QSqlQuery>
#include <QSqlRecord>
#include <optional>

#include "core/file/reading/LeArquivoVrt.h"
#include "core/store/modBancoDados.h"

class Linha {
public:
    explicit Linha(int tamanho) : m_texto(tamanho, QLatin1Char(' ')) {}
    // `valor` at position `posicao` (from 1), over what was there.
    Linha& poe(int posicao, const QString& valor)
    {
        m_texto.replace(posicao - 1, valor.size(), valor);
        return *this;
    }
    Linha& zeros(int posicao, int tamanho) { return poe(posicao, QString(tamanho, QLatin1Char('0'))); }
    operator QString() const { return m_texto; }
    QString texto() const { return m_texto; }

private:
    QString m_texto;
};

namespace ArquivoTeste {

inline const QString Cnpj = QStringLiteral("12345678000195");

// Record 00 of a monthly file: origin digit, reference month yyyymm.
inline QString registro00Mensal(QChar origem = QLatin1Char('3'), const QString& aaaamm = QStringLiteral("200812"),
                                const QString& cnpj = Cnpj)
{
    return Linha(61)
        .poe(1, QStringLiteral("00VRT/PLN"))
        .poe(10, QString(origem))
        .poe(11, QStringLiteral("02.00"))
        .poe(16, QStringLiteral("2"))
        .poe(17, aaaamm)
        .zeros(23, 14)
        .zeros(42, 6)
        .poe(48, cnpj);
}

// Record 00 of an individual file: state registration, invoice series and number.
inline QString registro00Individual(QChar origem = QLatin1Char('3'),
                                    const QString& inscricao = QStringLiteral("00000123456789"),
                                    const QString& serie = QStringLiteral("1    "),
                                    const QString& numero = QStringLiteral("004321"), const QString& cnpj = Cnpj)
{
    return Linha(61)
        .poe(1, QStringLiteral("00VRT/PLN"))
        .poe(10, QString(origem))
        .poe(11, QStringLiteral("02.00"))
        .poe(16, QStringLiteral("1"))
        .zeros(17, 6)
        .poe(23, inscricao)
        .poe(37, serie)
        .poe(42, numero)
        .poe(48, cnpj);
}

inline QString registro01Mensal(const QString& aaaamm = QStringLiteral("200812"))
{
    return Linha(113)
        .poe(1, QStringLiteral("0121"))
        .poe(5, aaaamm)
        .poe(11, Cnpj)
        .zeros(25, 14)
        .zeros(44, 6)
        .zeros(50, 8)
        .zeros(58, 8)
        .zeros(66, 4)
        .zeros(70, 1)
        .poe(88, QStringLiteral("001"))
        .poe(91, QStringLiteral("3344"))
        .poe(95, QStringLiteral("0000000000012345678"));
}

// Record 01 of an individual file: issued 15/03/2009, left 16/03/2009, CFOP 6101, a CNPJ recipient in AM.
inline QString registro01Individual(const QString& uf = QStringLiteral("AM"), const QString& alc = QStringLiteral("N"))
{
    return Linha(113)
        .poe(1, QStringLiteral("0111"))
        .zeros(5, 6)
        .poe(11, Cnpj)
        .poe(25, QStringLiteral("00000123456789"))
        .poe(39, QStringLiteral("1    "))
        .poe(44, QStringLiteral("004321"))
        .poe(50, QStringLiteral("20090315"))
        .poe(58, QStringLiteral("20090316"))
        .poe(66, QStringLiteral("6101"))
        .poe(70, QStringLiteral("1"))
        .poe(71, QStringLiteral("98765432000198"))
        .poe(85, uf)
        .poe(87, alc)
        .zeros(88, 3)
        .zeros(91, 4)
        .zeros(95, 19);
}

// Record 02 without a judicial order: "N" and 35 empty slots.
inline QString registro02()
{
    QString t = QStringLiteral("02N");
    for (int k = 0; k < 35; ++k)
        t += QLatin1Char('N') + QString(15, QLatin1Char('0'));
    return t;
}

// Record 03 of a declaration that rectifies none.
inline QString registro03()
{
    return QStringLiteral("03") + QString(10 + 17 + 33 * 15, QLatin1Char('0'));
}

inline QStringList cabecalhoMensal(QChar origem = QLatin1Char('3'))
{
    return {registro00Mensal(origem), registro01Mensal(), registro02(), registro03()};
}

inline QStringList cabecalhoIndividual(QChar origem = QLatin1Char('3'))
{
    return {registro00Individual(origem), registro01Individual(), registro02(), registro03()};
}

// The file as the format has it: Windows-1252, CR LF after each line (also the last unless told otherwise).
inline QByteArray bytes(const QStringList& linhas, bool fimDeLinhaNoFim = true)
{
    QStringEncoder codificador("windows-1252");
    QByteArray b = codificador(linhas.join(QStringLiteral("\r\n")));
    if (fimDeLinhaNoFim && !linhas.isEmpty())
        b += "\r\n";
    return b;
}

inline void grava(const QString& caminho, const QByteArray& conteudo)
{
    QFile f(caminho);
    if (f.open(QIODevice::WriteOnly))
        f.write(conteudo);
}

// The identification the next declaration gets in an installation whose counter stands at `ultimo`.
// Reads `conteudo` as a declaration file held in memory, with the outcome shown through the message seam.
inline bool leDaMemoria(const QByteArray& conteudo, ModoLeitura modo = ModoLeitura::Importar)
{
    QBuffer arquivo;
    arquivo.setData(conteudo);
    return LeArquivoVrtEm(arquivo, modo);
}

inline QString identificacao(int numero)
{
    return QString::number(numero).rightJustified(5, QLatin1Char('0')) + QLatin1Char('/') +
           QString::number(QDate::currentDate().year() % 100).rightJustified(2, QLatin1Char('0'));
}

// Item records of a monthly file, by hand from the layout tables. Values are the file's digits.
inline QString r11(const QString& dest, const QString& codigo, const QString& nome, const QString& qtEst,
                   const QString& qtDest, const QString& unidade, const QString& justII = QString(),
                   const QString& aliqII = QStringLiteral("00000"), const QString& ncm = QStringLiteral("84713012"))
{
    return Linha(707).poe(1, QStringLiteral("11000")).poe(6, ncm).poe(14, codigo).poe(29, dest).poe(30, nome)
        .poe(75, justII).poe(328, aliqII).poe(586, QStringLiteral("00000")).zeros(611, 14).poe(625, qtEst)
        .zeros(639, 20).zeros(659, 15).poe(674, qtDest).poe(688, unidade);
}
inline QString r12()
{
    return Linha(93).poe(1, QStringLiteral("12")).poe(3, QStringLiteral("11222333000181")).poe(17, QStringLiteral("A1"))
        .poe(22, QStringLiteral("000123")).poe(28, QStringLiteral("001")).poe(31, QStringLiteral("20081105"))
        .poe(39, QStringLiteral("0102")).poe(43, QStringLiteral("SN")).poe(45, QStringLiteral("00000000150000"))
        .poe(59, QStringLiteral("00000000000025000000")).zeros(79, 15);
}
inline QString r13()
{
    return Linha(133).poe(1, QStringLiteral("13")).poe(3, QStringLiteral("0812345678")).zeros(13, 15)
        .poe(28, QStringLiteral("001")).poe(31, QStringLiteral("02")).poe(33, QStringLiteral("SN"))
        .poe(35, QStringLiteral("00000000100000")).poe(49, QStringLiteral("00000000000012500000"))
        .poe(69, QStringLiteral("220")).poe(72, QStringLiteral("00000000000000500000")).poe(92, QStringLiteral("220"))
        .poe(95, QStringLiteral("00000000000000100000")).poe(115, QStringLiteral("220")).zeros(118, 15)
        .poe(133, QStringLiteral("N"));
}
inline QString r14()
{
    return Linha(114).poe(1, QStringLiteral("14")).poe(3, QStringLiteral("0798765432")).zeros(13, 15)
        .poe(28, QStringLiteral("003")).poe(31, QStringLiteral("00000000020000")).zeros(45, 20).zeros(65, 3)
        .zeros(68, 20).zeros(88, 3).zeros(91, 20).zeros(111, 3).poe(114, QStringLiteral("N"));
}
inline QString r21(const QString& dest, const QString& codigo, const QString& nome, const QString& unidade,
                   const QString& dcre = QStringLiteral("0000000000"), const QString& dcr = QStringLiteral("000000000"))
{
    return Linha(198).poe(1, QStringLiteral("21000")).poe(6, dest).poe(7, dcre).poe(17, codigo).poe(32, dcr)
        .poe(41, nome).poe(86, QStringLiteral("00000000000003500000")).poe(106, QStringLiteral("08800"))
        .zeros(111, 14).poe(125, QStringLiteral("00000000300000")).poe(139, unidade)
        .poe(159, QStringLiteral("00000000000001650000")).poe(179, QStringLiteral("00000000000007600000"));
}
inline QString r31(const QString& codigo, const QString& nome, const QString& unidade, const QString& q1,
                   const QString& q2, const QString& q3, const QString& q4)
{
    return Linha(187).poe(1, QStringLiteral("31000")).poe(6, codigo).poe(21, nome).poe(66, unidade)
        .poe(86, QStringLiteral("84713012")).zeros(94, 34).poe(128, QStringLiteral("1") + q1)
        .poe(143, QStringLiteral("2") + q2).poe(158, QStringLiteral("3") + q3).poe(173, QStringLiteral("4") + q4);
}
inline QString r32(const QString& produto, const QString& insumo, const QString& nome, const QString& unidade)
{
    return Linha(122).poe(1, QStringLiteral("32000")).poe(6, produto).poe(21, insumo)
        .poe(36, QStringLiteral("39269090")).poe(44, nome).poe(89, unidade).poe(109, QStringLiteral("00000000250000"));
}
inline QString r33(const QString& insumo, const QString& qtTotal = QStringLiteral("00000001250000"))
{
    return Linha(565).poe(1, QStringLiteral("33000")).poe(6, insumo).poe(21, qtTotal).poe(35, QStringLiteral("1"))
        .poe(36, QStringLiteral("Ex-tarifário")).poe(289, QStringLiteral("00200")).poe(547, QStringLiteral("00000"))
        .poe(552, QStringLiteral("00000001250000"));
}
inline QString r34(const QString& insumo, const QString& dest = QStringLiteral("1"))
{
    return Linha(93).poe(1, QStringLiteral("34")).poe(3, QStringLiteral("11222333000181")).poe(17, QStringLiteral("B"))
        .poe(22, QStringLiteral("000456")).poe(28, QStringLiteral("002")).poe(31, QStringLiteral("20081120"))
        .poe(39, QStringLiteral("0102")).poe(43, QStringLiteral("S")).poe(44, QStringLiteral("00000000500000"))
        .poe(58, QStringLiteral("00000000000001234567")).poe(78, insumo).poe(93, dest);
}
inline QString r35(const QString& insumo, const QString& dest = QStringLiteral("1"))
{
    return Linha(133).poe(1, QStringLiteral("35")).poe(3, QStringLiteral("0811111111")).zeros(13, 15)
        .poe(28, QStringLiteral("004")).poe(31, QStringLiteral("01")).poe(33, QStringLiteral("S"))
        .poe(34, QStringLiteral("00000000400000")).poe(48, QStringLiteral("00000000000009900000"))
        .poe(68, QStringLiteral("220")).zeros(71, 20).zeros(91, 3).zeros(94, 20).zeros(114, 3).poe(117, insumo)
        .poe(132, dest).poe(133, QStringLiteral("N"));
}
inline QString r36(const QString& insumo, const QString& dest = QStringLiteral("1"))
{
    return Linha(130).poe(1, QStringLiteral("36")).poe(3, QStringLiteral("0722222222")).zeros(13, 15)
        .poe(28, QStringLiteral("005")).poe(31, QStringLiteral("00000000030000")).poe(45, insumo).poe(60, dest)
        .poe(61, QStringLiteral("00000000000004400000")).poe(81, QStringLiteral("978")).zeros(84, 20).zeros(104, 3)
        .zeros(107, 20).zeros(127, 3).poe(130, QStringLiteral("S"));
}
inline QString r41(const QString& codigo, const QString& nome, const QString& unidade,
                   const QString& ncm = QStringLiteral("84713012"))
{
    return Linha(184).poe(1, QStringLiteral("41000")).poe(6, ncm).poe(14, codigo).poe(29, nome).poe(74, unidade)
        .zeros(94, 48).poe(142, QStringLiteral("000000000123456")).poe(157, QStringLiteral("00000000700000"))
        .poe(171, QStringLiteral("00000000070000"));
}

// The NCM codes the composed item records use, registered as the reader requires.
inline void cadastraNcmsDosRegistros()
{
    // The delivered table has them too: the test's own descriptions and units stand in for theirs.
    BancoTeste::executa(QStringLiteral("INSERT OR REPLACE INTO NCM_ITEM (CD_NCM_PRODUTO, DESCR_NCM_PRODUTO, "
                                       "NM_UNID_MED_EST) VALUES ('84713012', 'Máquinas portáteis', 'UN'), "
                                       "('39269090', 'Outras obras de plástico', 'KG')"));
}

// A test database with those NCM codes: the reader tests make one per test function
// (`std::optional<BancoDeLeitura> m_banco`, `init() { m_banco.emplace(); }`, `cleanup() { m_banco.reset(); }`).
struct BancoDeLeitura : BancoTeste {
    BancoDeLeitura() { cadastraNcmsDosRegistros(); }
};

// Every row of every table, in the order of their keys: two equal dumps mean the database is exactly as it was.
inline QStringList retratoDoBanco()
{
    QStringList r;
    QSqlQuery tabelas(modBancoDados::ConexaoBanco());
    tabelas.exec(QStringLiteral("SELECT name FROM sqlite_master WHERE type = 'table' AND name NOT LIKE 'sqlite_%' "
                                "ORDER BY name"));
    QStringList nomes;
    while (tabelas.next())
        nomes << tabelas.value(0).toString();
    for (const QString& t : nomes) {
        QSqlQuery q(modBancoDados::ConexaoBanco());
        q.exec(QStringLiteral("SELECT * FROM ") + t + QStringLiteral(" ORDER BY rowid"));
        while (q.next()) {
            QStringList campos;
            for (int i = 0; i < q.record().count(); ++i)
                campos << (q.value(i).isNull() ? QStringLiteral("<nulo>") : q.value(i).toString());
            r << t + QLatin1Char(':') + campos.join(QLatin1Char('|'));
        }
    }
    return r;
}

// The declarations the round trips read, write, read and write again, as the lines of their files.
inline QList<QPair<QString, QStringList>> declaracoesIdaEVolta()
{
    const auto t = [](const char* s) { return QString::fromUtf8(s); };
    return {{t("mensal de todas as modalidades"),
             cabecalhoMensal() +
                 QStringList{r11(t("1"), t("P1"), t("Notebook D'Ávila"), t("00000000200000"), t("00000000120000"),
                                 t("UN"), t("Alíquota “reduzida” €"), t("01000")),
                             r12(), r13(), r14(),
                             r21(t("1"), t("P2"), t("Monitor"), t("PC"), t("0000000000"), t("000054321")),
                             r31(t("P3"), t("Placa mãe"), t("UN"), t("00000000010000"), t("00000000000000"),
                                 t("00000000005000"), t("00000000000000")),
                             r32(t("P3"), t("I1"), t("Parafuso"), t("CX 10")), r33(t("I1"), t("00000000002500")),
                             r34(t("I1")), r35(t("I1")), r36(t("I1")), r41(t("P4"), t("Cabo"), t("M"))}},
            {t("individual"), cabecalhoIndividual()}};
}

// A monthly declaration whose round trip is not exact: a zero rectification value, two items of one foreign
// product, an item with basic process at two destinations, a quantity stored with one decimal.
inline void insereMensalDasAssimetrias(const QString& id)
{
    const auto t = [](const char* s) { return QString::fromUtf8(s); };
    BancoTeste::executa(t("INSERT INTO VRT (ID_VRT_MICRO, CD_TIPO_VRT, NR_CNPJ_INTERNADOR, IND_MANDADO_JUDIC, "
                          "NR_BANCO_ARREC, NR_AG_BCO_ARREC, NR_CC_AG_BCO_ARREC, NR_VRT, NR_PROC_ADM_FISCAL, "
                          "IND_RESTITUICAO, IND_RETIFICACAO) VALUES (?, '2', '12345678000195', 'N', '001', '3344', "
                          "'12345678', '0912345678', ' ', 'N', 'S')"),
                        {id});
    BancoTeste::executa(t("INSERT INTO VRT_MENSAL (ID_VRT_MICRO, DT_REFERENCIA_VRT) VALUES (?, '122008')"), {id});
    // A rectification value of zero and one of ten.
    BancoTeste::executa(t("INSERT INTO VALORES_DIVER_RETIF (ID_VRT_MICRO, CD_MOD_RETIF, CD_TIPO_DIVER_RETIF, "
                          "VL_TOTAL_DIVER_RETIF, NM_MOD_INT_RETIF, NM_TIPO_DIVER_RETIF) VALUES "
                          "(?, '1', '2', '0,00', 'VRT - PE', 'Imposto de Importação'), "
                          "(?, '1', '3', '10,00', 'VRT - PE', 'Multa de Mora II')"),
                        {id, id});
    // Two items of one foreign product, one destination each.
    for (const char* local : {"1", "3"}) {
        BancoTeste::executa(t("INSERT INTO ITEM_VRT_MEN (ID_VRT_MICRO, CD_INT_PRODUTO, NM_INT_PRODUTO, "
                              "CD_NCM_PRODUTO, NM_UNID_MED_PROD, IND_MOD_INTERNACAO, QT_PROD_UNID_EST) "
                              "VALUES (?, 'P1', 'Caneca D''Ávila “€”', '84713012', 'UN', '1', '2,00000')"),
                            {id});
        BancoTeste::executa(t("INSERT INTO DESTINO_ITEM_VRT_MEN (ID_ITEM_VRT, CD_LOCAL_DESTINO, QT_PROD_LOC_DEST) "
                              "VALUES ((SELECT MAX(ID_ITEM_VRT) FROM ITEM_VRT_MEN), ?, '1,00000')"),
                            {t(local)});
    }
    // One item with basic process at two destinations.
    BancoTeste::executa(t("INSERT INTO ITEM_VRT_MEN (ID_VRT_MICRO, CD_INT_PRODUTO, NM_INT_PRODUTO, "
                          "IND_MOD_INTERNACAO) VALUES (?, 'P2', 'Monitor', '2')"),
                        {id});
    BancoTeste::executa(t("INSERT INTO ITEM_VRT_MEN_PI_COM_PPB (ID_ITEM_VRT, NR_DCRE_DCR, CD_TIPO_COEF_REDUCAO) "
                          "VALUES ((SELECT MAX(ID_ITEM_VRT) FROM ITEM_VRT_MEN), '54321', '2')"));
    for (const char* local : {"1", "2"}) {
        BancoTeste::executa(t("INSERT INTO DESTINO_ITEM_VRT_MEN (ID_ITEM_VRT, CD_LOCAL_DESTINO, QT_PROD_LOC_DEST, "
                              "VL_II_UNIT_DOLAR, PC_COEF_REDUCAO_II, NM_UNID_MED_DEST, VL_PIS, VL_COFINS) VALUES "
                              "((SELECT MAX(ID_ITEM_VRT) FROM ITEM_VRT_MEN), ?, '3,00000', '0,3500000', '88,00', "
                              "'PC', '0,1650000', '0,7600000')"),
                            {t(local)});
    }
    // A wholly national product whose quantity was stored with one decimal, not five.
    BancoTeste::executa(t("INSERT INTO ITEM_VRT_MEN (ID_VRT_MICRO, CD_INT_PRODUTO, NM_INT_PRODUTO, CD_NCM_PRODUTO, "
                          "NM_UNID_MED_PROD, IND_MOD_INTERNACAO, VL_PROD_UNID_PROD, QT_PROD_UNID_PROD, "
                          "QT_PROD_UNID_EST) VALUES (?, 'P4', 'Cabo', '84713012', 'M', '4', '12,50', '1,5', "
                          "'0,70000')"),
                        {id});
}

}  // namespace ArquivoTeste
