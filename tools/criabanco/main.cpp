// Builds the delivered database: the schema, then every reference data script of the data folder in name order,
// then the reference rows converted from the public source files kept unchanged in PASTA_DADOS/fontes
// (currencies, states, commercial units; see the README there).
// Usage: vrt-criabanco schema.sql PASTA_DADOS ARQUIVO_SAIDA
#include "core/store/ScriptSql.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSqlDatabase>
#include <QSqlError>
#include <QSqlQuery>
#include <QXmlStreamReader>
#include <algorithm>
#include <cstdio>
#include <cstdlib>

namespace {

QString arquivoSaida;

// A half-built file must not be taken for the delivered database by the next build.
[[noreturn]] void falha(const QString& texto)
{
    std::fprintf(stderr, "vrt-criabanco: %s\n", qPrintable(texto));
    if (!arquivoSaida.isEmpty())
        QFile::remove(arquivoSaida);
    std::exit(1);
}

QString leTexto(const QString& caminho)
{
    QFile f(caminho);
    if (!f.open(QIODevice::ReadOnly))
        falha(QStringLiteral("não foi possível ler %1").arg(caminho));
    QString texto = QString::fromUtf8(f.readAll());
    if (texto.startsWith(QChar(0xFEFF)))  // the byte order mark some files begin with
        texto.remove(0, 1);
    return texto;
}

void executaScript(QSqlDatabase& db, const QString& caminho)
{
    for (const QString& comando : DivideScriptSql(leTexto(caminho))) {
        QSqlQuery q(db);
        if (!q.exec(comando))
            falha(QStringLiteral("%1: %2\n%3").arg(caminho, q.lastError().text(), comando.left(300)));
    }
}

using Linha = QStringList;

// Inserts rows of two text columns, with bound values.
void insere(QSqlDatabase& db, const QString& tabela, const QString& colunas, const QList<Linha>& linhas,
            const QString& origem)
{
    if (linhas.isEmpty())
        falha(QStringLiteral("%1: nenhuma linha lida").arg(origem));
    QSqlQuery q(db);
    if (!q.prepare(QStringLiteral("INSERT INTO %1 (%2) VALUES (?, ?)").arg(tabela, colunas)))
        falha(q.lastError().text());
    for (const Linha& l : linhas) {
        q.addBindValue(l.value(0));
        q.addBindValue(l.value(1));
        if (!q.exec())
            falha(QStringLiteral("%1: %2 (%3)").arg(origem, q.lastError().text(), l.join(QLatin1String(" | "))));
    }
    std::printf("%s: %lld linhas de %s\n", qPrintable(tabela), static_cast<long long>(linhas.size()),
                qPrintable(QFileInfo(origem).fileName()));
}

// States: a comma-separated file with a header line; the columns "uf" and "nome" give code and name.
QList<Linha> leEstados(const QString& caminho)
{
    QStringList linhas = leTexto(caminho).split(QLatin1Char('\n'));
    if (linhas.isEmpty())
        return {};
    const QStringList cabecalho = linhas.takeFirst().trimmed().split(QLatin1Char(','));
    const int colUf = cabecalho.indexOf(QStringLiteral("uf"));
    const int colNome = cabecalho.indexOf(QStringLiteral("nome"));
    if (colUf < 0 || colNome < 0)
        falha(QStringLiteral("%1: colunas uf e nome não encontradas").arg(caminho));
    QList<Linha> estados;
    for (const QString& bruta : linhas) {
        const QString linha = bruta.trimmed();
        if (linha.isEmpty())
            continue;
        const QStringList campos = linha.split(QLatin1Char(','));
        if (campos.size() != cabecalho.size())
            falha(QStringLiteral("%1: linha fora do formato: %2").arg(caminho, linha));
        estados.append({campos[colUf].trimmed(), campos[colNome].trimmed()});
    }
    return estados;
}

// A plain YAML scalar: single quotes (with '' for a quote), double quotes, or bare text.
QString valorYaml(QString v)
{
    v = v.trimmed();
    if (v.size() >= 2 && v.startsWith(QLatin1Char('\'')) && v.endsWith(QLatin1Char('\'')))
        return v.mid(1, v.size() - 2).replace(QStringLiteral("''"), QStringLiteral("'"));
    if (v.size() >= 2 && v.startsWith(QLatin1Char('"')) && v.endsWith(QLatin1Char('"')))
        return v.mid(1, v.size() - 2);
    return v;
}

// Currencies: a YAML list whose entries hold a block ":dados:" with ":codigo:" and ":nome:" (Ruby symbols as
// keys). Only that shape is read: a key line is "<indent>[- ]:chave: valor"; the keys under ":dados:" are those
// indented deeper than it. An entry's ":nome:" outside ":dados:" is the constant's name and is not wanted.
QList<Linha> leMoedas(const QString& caminho)
{
    QList<Linha> moedas;
    QString codigo, nome;
    int recuoDados = -1;
    auto fechaEntrada = [&] {
        if (!codigo.isEmpty() || !nome.isEmpty()) {
            if (codigo.isEmpty() || nome.isEmpty())
                falha(QStringLiteral("%1: moeda sem código ou nome (%2 %3)").arg(caminho, codigo, nome));
            moedas.append({codigo, nome});
        }
        codigo.clear();
        nome.clear();
        recuoDados = -1;
    };
    for (const QString& bruta : leTexto(caminho).split(QLatin1Char('\n'))) {
        QString linha = bruta;
        linha.remove(QLatin1Char('\r'));
        if (linha.trimmed().isEmpty() || linha.trimmed() == QLatin1String("---"))
            continue;
        int recuo = 0;
        while (recuo < linha.size() && linha[recuo] == QLatin1Char(' '))
            ++recuo;
        QString conteudo = linha.mid(recuo);
        if (conteudo.startsWith(QLatin1String("- "))) {
            fechaEntrada();
            conteudo = conteudo.mid(2);
            recuo += 2;
        }
        if (!conteudo.startsWith(QLatin1Char(':')))
            falha(QStringLiteral("%1: linha fora do formato: %2").arg(caminho, linha));
        const int fimChave = conteudo.indexOf(QLatin1Char(':'), 1);
        if (fimChave < 0)
            falha(QStringLiteral("%1: linha fora do formato: %2").arg(caminho, linha));
        const QString chave = conteudo.left(fimChave + 1);
        const QString valor = valorYaml(conteudo.mid(fimChave + 1));
        if (recuoDados >= 0 && recuo <= recuoDados)
            recuoDados = -1;
        if (chave == QLatin1String(":dados:") && valor.isEmpty()) {
            recuoDados = recuo;
        } else if (recuoDados >= 0) {
            if (chave == QLatin1String(":codigo:"))
                codigo = valor;
            else if (chave == QLatin1String(":nome:"))
                nome = valor;
        }
    }
    fechaEntrada();
    return moedas;
}

// Commercial units: the records of model "uom.uom" with a field "code". Codes with a lower-case letter are
// imperial and time units that are no commercial unit of an invoice; a code met twice counts once. The code is
// what an invoice and an item carry as the unit, so it is the name; the key is "01", "02", ... in file order.
QList<Linha> leUnidades(const QString& caminho)
{
    QFile f(caminho);
    if (!f.open(QIODevice::ReadOnly))
        falha(QStringLiteral("não foi possível ler %1").arg(caminho));
    QXmlStreamReader xml(&f);
    QStringList codigos;
    bool emRegistro = false;
    QString codigo;
    while (!xml.atEnd()) {
        xml.readNext();
        if (xml.isStartElement() && xml.name() == QLatin1String("record")) {
            emRegistro = xml.attributes().value(QLatin1String("model")) == QLatin1String("uom.uom");
            codigo.clear();
        } else if (emRegistro && xml.isStartElement() && xml.name() == QLatin1String("field")
                   && xml.attributes().value(QLatin1String("name")) == QLatin1String("code")) {
            codigo = xml.readElementText().trimmed();
        } else if (emRegistro && xml.isEndElement() && xml.name() == QLatin1String("record")) {
            emRegistro = false;
            const bool minuscula = std::any_of(codigo.cbegin(), codigo.cend(), [](QChar c) { return c.isLower(); });
            if (!codigo.isEmpty() && !minuscula && !codigos.contains(codigo))
                codigos.append(codigo);
        }
    }
    if (xml.hasError())
        falha(QStringLiteral("%1: %2").arg(caminho, xml.errorString()));
    if (codigos.size() > 99)
        falha(QStringLiteral("%1: mais de 99 unidades").arg(caminho));
    QList<Linha> unidades;
    for (int i = 0; i < codigos.size(); ++i)
        unidades.append({QStringLiteral("%1").arg(i + 1, 2, 10, QLatin1Char('0')), codigos[i]});
    return unidades;
}

void converteFontes(QSqlDatabase& db, const QDir& fontes)
{
    const QString estados = fontes.filePath(QStringLiteral("uf_estados_ibge.csv"));
    const QString moedas = fontes.filePath(QStringLiteral("moedas_bcb_2011.yml"));
    const QString unidades = fontes.filePath(QStringLiteral("unidades_medida_comercial_sefaz2016_odoo.xml"));
    insere(db, QStringLiteral("UNIDADE_FEDERATIVA"), QStringLiteral("CD_UF_DESTINO, NM_UF"), leEstados(estados),
           estados);
    insere(db, QStringLiteral("MOEDA"), QStringLiteral("CD_MOEDA, NM_MOEDA"), leMoedas(moedas), moedas);
    insere(db, QStringLiteral("UNIDADE_MEDIDA"), QStringLiteral("CD_UNID_MEDIDA, NM_MEDIDA"), leUnidades(unidades),
           unidades);
}

}  // namespace

int main(int argc, char** argv)
{
    QCoreApplication app(argc, argv);
    const QStringList args = app.arguments();
    if (args.size() != 4) {
        std::fprintf(stderr, "uso: vrt-criabanco schema.sql PASTA_DADOS ARQUIVO_SAIDA\n");
        return 2;
    }
    arquivoSaida = args[3];
    QFile::remove(args[3]);
    bool ok = false;
    {
        QSqlDatabase db = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), QStringLiteral("cria"));
        db.setDatabaseName(args[3]);
        if (!db.open()) {
            std::fprintf(stderr, "%s\n", qPrintable(db.lastError().text()));
            return 1;
        }
        QSqlQuery(db).exec(QStringLiteral("PRAGMA foreign_keys = ON"));
        db.transaction();
        executaScript(db, args[1]);
        const QDir dados(args[2]);
        for (const QString& nome : dados.entryList({QStringLiteral("*.sql")}, QDir::Files, QDir::Name))
            executaScript(db, dados.filePath(nome));
        converteFontes(db, QDir(dados.filePath(QStringLiteral("fontes"))));
        ok = db.commit();
        if (!ok)
            std::fprintf(stderr, "%s\n", qPrintable(db.lastError().text()));
        db.close();
    }
    QSqlDatabase::removeDatabase(QStringLiteral("cria"));
    if (!ok) {
        QFile::remove(args[3]);
        return 1;
    }
    return 0;
}
