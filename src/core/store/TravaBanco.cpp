#include "core/store/TravaBanco.h"

#include <QCoreApplication>
#include <QFileInfo>

TravaBanco::TravaBanco(const QString& arquivoBanco) : m_trava(ArquivoTrava(arquivoBanco))
{
    // Never stale by age: a long editor session keeps its lock. Stale only when its process is gone.
    m_trava.setStaleLockTime(0);
}

bool TravaBanco::trava()
{
    // The lock file names the application, and whoever finds it compares that name with the holder's running
    // executable to tell a live holder from a dead one whose process number was reused. The program calls
    // itself "VRT" (its data folder's name) while its executable is "vrt": the lock must carry the latter,
    // or every other process would take a live program's lock for a stale one.
    const QString nome = QCoreApplication::applicationName();
    if (QCoreApplication::instance())
        QCoreApplication::setApplicationName(QFileInfo(QCoreApplication::applicationFilePath()).fileName());
    const bool travado = m_trava.tryLock(0);
    QCoreApplication::setApplicationName(nome);
    return travado;
}

QString TravaBanco::ArquivoTrava(const QString& arquivoBanco)
{
    return arquivoBanco + QStringLiteral(".lock");
}
