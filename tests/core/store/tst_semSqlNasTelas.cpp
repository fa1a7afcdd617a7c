// One path to the store: no file of the screens' layer nor of vrt-cli holds SQL in a string literal; every read
// and write they make goes through a named routine of the core. The scan is tested on samples first, so that a
// scanner that finds nothing cannot pass for clean sources.
#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QRegularExpression>
#include <QtTest>

namespace {

// The string literals of a C++ text, comments left out ('"' and escaped quotes taken care of).
QStringList literais(const QString& fonte)
{
    QStringList lista;
    enum { Codigo, Linha, Bloco, Texto, Caractere } estado = Codigo;
    QString atual;
    for (int i = 0; i < fonte.size(); ++i) {
        const QChar c = fonte.at(i);
        const QChar proximo = i + 1 < fonte.size() ? fonte.at(i + 1) : QChar();
        switch (estado) {
        case Codigo:
            if (c == u'/' && proximo == u'/')
                estado = Linha;
            else if (c == u'/' && proximo == u'*')
                estado = Bloco;
            else if (c == u'"')
                estado = Texto;
            else if (c == u'\'')
                estado = Caractere;
            break;
        case Linha:
            if (c == u'\n')
                estado = Codigo;
            break;
        case Bloco:
            if (c == u'*' && proximo == u'/') {
                estado = Codigo;
                ++i;
            }
            break;
        case Texto:
            if (c == u'\\') {
                atual += c;
                atual += proximo;
                ++i;
            } else if (c == u'"') {
                lista << atual;
                atual.clear();
                estado = Codigo;
            } else {
                atual += c;
            }
            break;
        case Caractere:
            if (c == u'\\')
                ++i;
            else if (c == u'\'')
                estado = Codigo;
            break;
        }
    }
    return lista;
}

// The statement words, as the program writes them (upper case), and the statements in any case.
bool pareceSql(const QString& literal)
{
    static const QRegularExpression maiusculas(
        QStringLiteral("\\b(SELECT|INSERT|UPDATE|DELETE|FROM|WHERE|ORDER BY|GROUP BY|JOIN|VALUES|PRAGMA|VACUUM|"
                       "CREATE TABLE|DROP TABLE)\\b"));
    static const QRegularExpression frases(
        QStringLiteral("\\b(select\\s.+\\sfrom|insert\\s+into|update\\s+\\w+\\s+set|delete\\s+(\\*\\s+)?from)\\b"),
        QRegularExpression::CaseInsensitiveOption);
    return maiusculas.match(literal).hasMatch() || frases.match(literal).hasMatch();
}

// The screens' layer and vrt-cli: src/gui once the layers are in place, else the screen folders of old.
QStringList arquivosDasTelasEDoCli()
{
    const QString raiz = QStringLiteral(VRT_SOURCE_DIR "/src/");
    QStringList pastas{raiz + QStringLiteral("cli")};
    if (QDir(raiz + QStringLiteral("gui")).exists())
        pastas << raiz + QStringLiteral("gui");
    else
        pastas << raiz + QStringLiteral("widgets") << raiz + QStringLiteral("assistants") << raiz + QStringLiteral("editor")
               << raiz + QStringLiteral("items");
    QStringList arquivos;
    for (const QString& pasta : pastas) {
        QDirIterator it(pasta, {QStringLiteral("*.cpp"), QStringLiteral("*.h")}, QDir::Files,
                        QDirIterator::Subdirectories);
        while (it.hasNext())
            arquivos << it.next();
    }
    if (!QDir(raiz + QStringLiteral("gui")).exists()) {
        QDirIterator shell(raiz + QStringLiteral("shell"), {QStringLiteral("frm*")}, QDir::Files);
        while (shell.hasNext())
            arquivos << shell.next();
        QDirIterator file(raiz + QStringLiteral("file"), {QStringLiteral("frmManipulaArquivo*")}, QDir::Files);
        while (file.hasNext())
            arquivos << file.next();
    }
    return arquivos;
}

}  // namespace

class TstSemSqlNasTelas : public QObject {
    Q_OBJECT

private slots:
    void reconheceSqlEmLiteral_data()
    {
        QTest::addColumn<QString>("fonte");
        QTest::addColumn<bool>("sql");
        QTest::newRow("select") << QStringLiteral("f(QStringLiteral(\"SELECT 1 FROM VRT WHERE ID = ?\"));") << true;
        QTest::newRow("delete em minúsculas") << QStringLiteral("x = \"delete from vrt\";") << true;
        QTest::newRow("insert partido em dois") << QStringLiteral("\"INSERT INTO %1 \"\n \"(A) VALUES (?)\"") << true;
        QTest::newRow("update") << QStringLiteral("\"update produto set nm = ?\"") << true;
        QTest::newRow("texto da tela") << QStringLiteral("MsgBox(\"Deseja realmente excluir?\");") << false;
        QTest::newRow("palavra em comentário") << QStringLiteral("// SELECT the row\nint a = 1;") << false;
        QTest::newRow("aspas num caractere") << QStringLiteral("c == '\"' ? \"seleciona\" : \"\"") << false;
    }
    void reconheceSqlEmLiteral()
    {
        QFETCH(QString, fonte);
        QFETCH(bool, sql);
        bool achou = false;
        for (const QString& l : literais(fonte))
            achou = achou || pareceSql(l);
        QCOMPARE(achou, sql);
    }

    void telasEVrtCliNaoEscrevemSql()
    {
        const QStringList arquivos = arquivosDasTelasEDoCli();
        QVERIFY2(arquivos.size() > 20, "as pastas das telas não foram encontradas");
        QStringList achados;
        for (const QString& caminho : arquivos) {
            QFile f(caminho);
            QVERIFY(f.open(QIODevice::ReadOnly));
            for (const QString& l : literais(QString::fromUtf8(f.readAll()))) {
                if (pareceSql(l))
                    achados << caminho + QStringLiteral(": \"") + l + QLatin1Char('"');
            }
        }
        QVERIFY2(achados.isEmpty(), qPrintable(achados.join(QLatin1Char('\n'))));
    }
};

QTEST_GUILESS_MAIN(TstSemSqlNasTelas)
#include "tst_semSqlNasTelas.moc"
