#include "core/store/TravaBanco.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QThread>

TravaBanco::TravaBanco(const QString& arquivoBanco) : m_arquivoBanco(arquivoBanco), m_trava(ArquivoTrava(arquivoBanco))
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
    bool travado = m_trava.tryLock(0);
    // Taking over a dead holder's lock goes through a second lock file, "<lock>.rmlock", that Qt holds while it
    // removes the first. A process killed between creating that file and writing its number leaves it empty,
    // and every later attempt gives up on it for half a minute: gone, when it stays empty.
    const QString remocao = ArquivoTrava(m_arquivoBanco) + QStringLiteral(".rmlock");
    if (!travado && vaziaDeMorto(remocao))
        travado = QFile::remove(remocao) && m_trava.tryLock(0);
    if (!travado && vaziaDeMorto(ArquivoTrava(m_arquivoBanco)))
        travado = m_trava.removeStaleLockFile() && m_trava.tryLock(0);
    QCoreApplication::setApplicationName(nome);
    return travado;
}

bool TravaBanco::vaziaDeMorto(const QString& arquivo)
{
    // A process killed between creating a lock file and writing its number into it leaves a file that names
    // nobody, which the lock would hold for ever. A live holder writes its number at once: a file still
    // unreadable a moment later was left by a dead one.
    if (!QFileInfo::exists(arquivo))
        return false;
    const QLockFile trava(arquivo);
    qint64 pid = 0;
    QString maquina, aplicacao;
    for (int tentativa = 0; tentativa < 5; ++tentativa) {
        if (trava.getLockInfo(&pid, &maquina, &aplicacao))
            return false;
        QThread::msleep(100);
    }
    return QFileInfo::exists(arquivo);
}

QString TravaBanco::ArquivoTrava(const QString& arquivoBanco)
{
    return arquivoBanco + QStringLiteral(".lock");
}
