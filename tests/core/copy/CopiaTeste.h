#pragma once
// What the copy tests share: a golden file of the writer read as fields, so that a test can say which fields of
// the copy's file differ from the original's and how, and the copy's file and the original's written side by side.
#include "CenariosGravacao.h"
#include "TestUtil.h"

#include "core/file/writing/GravaVrt.h"

#include <QFile>
#include <QStringConverter>
#include <QTemporaryDir>

namespace CopiaTeste {

struct ArquivoEmCampos {
    QList<QStringList> linhas;
    bool semFimDeLinha = false;

    // Replaces field `campo` (from 0) of line `linha` (from 0), which must keep its width.
    void troca(int linha, int campo, const QString& valor)
    {
        QStringList& l = linhas[linha];
        QVERIFY2(l.at(campo).size() == valor.size(),
                 qPrintable(QStringLiteral("largura do campo %1 da linha %2").arg(campo).arg(linha + 1)));
        l[campo] = valor;
    }
    QByteArray bytes() const
    {
        QString texto;
        for (const QStringList& l : linhas)
            texto += l.join(QString()) + QStringLiteral("\r\n");
        if (semFimDeLinha)
            texto.chop(2);
        QStringEncoder cp1252("windows-1252");
        return cp1252.encode(texto);
    }
};

inline ArquivoEmCampos campos(const QString& nome)
{
    QFile f(QStringLiteral(VRT_TEST_DATA "/gravacao/") + nome);
    if (!f.open(QIODevice::ReadOnly))
        qFatal("arquivo de referência ausente: %s", qPrintable(nome));
    ArquivoEmCampos a;
    for (const QString& l : QString::fromUtf8(f.readAll()).split(u'\n')) {
        if (l.isEmpty() || l.startsWith(u'#'))
            continue;
        if (l == QStringLiteral("«sem CR LF no fim»"))
            a.semFimDeLinha = true;
        else
            a.linhas << l.split(u'|');
    }
    return a;
}

// The declaration written for transmission into `pasta`; the file's bytes.
inline QByteArray gravada(const QString& id, const QString& pasta)
{
    MensagensRoteiro msgs;
    msgs.responde(Msg::OK);
    const ResultadoGravacao r = GravaVrt({id}, pasta, ModoGravacao::Transmissao);
    return CenariosGravacao::conteudo(r.arquivos.value(0));
}

}  // namespace CopiaTeste
