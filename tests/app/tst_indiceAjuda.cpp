// The help index leads to every page of the help, and every picture a page shows is there.
#include "TestUtil.h"

#include <QDir>
#include <QFile>
#include <QRegularExpression>
#include <QtTest>

namespace {

QString le(const QString& arquivo)
{
    QFile f(arquivo);
    return f.open(QIODevice::ReadOnly) ? QString::fromUtf8(f.readAll()) : QString();
}

const QString Ajuda = QStringLiteral(VRT_SOURCE_DIR "/help");

}  // namespace

class tst_indiceAjuda : public QObject {
    Q_OBJECT
private slots:
    void indiceLevaATodasAsPaginas()
    {
        const QString indice = le(Ajuda + QStringLiteral("/index.html"));
        QVERIFY(!indice.isEmpty());
        const QStringList paginas = QDir(Ajuda).entryList({QStringLiteral("*.html")}, QDir::Files);
        QVERIFY(paginas.contains(QStringLiteral("pi_sem_ppb.html")));
        for (const QString& p : paginas)
            if (p != QLatin1String("index.html"))
                QVERIFY2(indice.contains(QStringLiteral("href=\"%1\"").arg(p)), qPrintable(p));
    }

    void figurasDasPaginasExistem()
    {
        const QRegularExpression figura(QStringLiteral("src=\"([^\"]+)\""));
        for (const QString& p : QDir(Ajuda).entryList({QStringLiteral("*.html")}, QDir::Files)) {
            auto it = figura.globalMatch(le(Ajuda + QLatin1Char('/') + p));
            while (it.hasNext()) {
                const QString f = it.next().captured(1);
                QVERIFY2(QFile::exists(Ajuda + QLatin1Char('/') + f), qPrintable(p + QStringLiteral(": ") + f));
            }
        }
    }
};

QTEST_GUILESS_MAIN(tst_indiceAjuda)
#include "tst_indiceAjuda.moc"
