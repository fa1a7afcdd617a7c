#pragma once
// Pictures of the item tabs for the help pages, taken offscreen from the real screens. They go to
// <build>/capturas/ajuda; with VRT_ATUALIZA_AJUDA=1 in the environment they also replace those in help/img.
#include "../editor/EditorTeste.h"

#include <QDir>
#include <QFile>
#include <QMdiArea>
#include <QMdiSubWindow>

namespace CapturaTeste {

using EditorTeste::Ambiente;

inline void salva(Ambiente& a, const QString& nome)
{
    QTest::qWait(50);
    QVERIFY(a.janela.mdiArea()->activeSubWindow());
    const QPixmap imagem = a.janela.grab();
    const QString pasta = QStringLiteral(VRT_BINARY_DIR "/capturas/ajuda");
    QDir().mkpath(pasta);
    QVERIFY(imagem.save(pasta + QLatin1Char('/') + nome));
    if (qEnvironmentVariableIntValue("VRT_ATUALIZA_AJUDA") == 1)
        QVERIFY(imagem.save(QStringLiteral(VRT_SOURCE_DIR "/help/img/") + nome));
}

// A help page shows each picture named, the picture is there, and the first page points to the page.
inline void paginaMostra(const QString& pagina, const QStringList& imagens)
{
    QFile f(QStringLiteral(VRT_SOURCE_DIR "/help/") + pagina);
    QVERIFY(f.open(QIODevice::ReadOnly));
    const QString html = QString::fromUtf8(f.readAll());
    for (const QString& img : imagens) {
        QVERIFY2(html.contains(QStringLiteral("img/") + img), qPrintable(img));
        QVERIFY2(QFile::exists(QStringLiteral(VRT_SOURCE_DIR "/help/img/") + img), qPrintable(img));
    }
    QFile indice(QStringLiteral(VRT_SOURCE_DIR "/help/index.html"));
    QVERIFY(indice.open(QIODevice::ReadOnly));
    QVERIFY(QString::fromUtf8(indice.readAll()).contains(pagina));
}

}  // namespace CapturaTeste
