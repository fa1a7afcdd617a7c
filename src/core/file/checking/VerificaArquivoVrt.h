#pragma once
// Checks a declaration file against the record layouts without touching the database, and lists every
// problem it finds rather than stopping at the first as the reader does: the header, the head records and
// their order, each line's record type and length, the nesting of the item records, digits in numeric fields,
// constants and dates. Where the reader has a message for a problem, the problem carries that same text.
#include "core/file/layout/LayoutRegistro.h"

#include <QList>
#include <QString>
#include <QStringList>

class LinhasArquivo;

struct ProblemaArquivo {
    int linha = 0;         // counted from 1; 0 for the file as a whole
    int posicaoInicial = 0;  // 0 when the problem is the whole line
    int posicaoFinal = 0;
    QString campo;         // the layout's field name, when there is one
    QString descricao;
    // "linha 5, posições 6-13 (CD_NCM_PRODUTO): ..." or "linha 5: ...".
    QString texto() const;
};

class VerificaArquivoVrt {
public:
    // False when the file cannot be read (a problem says so).
    bool verifica(const QString& caminho);
    const QList<ProblemaArquivo>& problemas() const { return m_problemas; }
    int linhas() const { return m_linhas; }

private:
    void verificaCabecalho(const QStringList& linhas);
    void verificaItens(LinhasArquivo& arquivo, TipoDeclaracao declaracao);
    void verificaCampos(int numero, const QString& linha, const LayoutRegistro& layout);
    void problema(int linha, const QString& descricao, int inicio = 0, int fim = 0, const QString& campo = QString());
    QList<ProblemaArquivo> m_problemas;
    int m_linhas = 0;
};
