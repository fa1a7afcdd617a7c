#pragma once
// One writer per database: a lock file beside it ("PLN_VRT_v2.mdb.lock"), held by the program for its whole run
// and by vrt-cli for the length of a command that writes. A lock left by a process that is gone (killed, or a
// machine that stopped) names a process that no longer runs, and is taken over.
#include <QLockFile>
#include <QString>

class TravaBanco {
public:
    explicit TravaBanco(const QString& arquivoBanco);
    // Takes the lock at once; false when a running process holds it.
    bool trava();
    bool travado() const { return m_trava.isLocked(); }
    static QString ArquivoTrava(const QString& arquivoBanco);

private:
    static bool vaziaDeMorto(const QString& arquivo);

    QString m_arquivoBanco;
    QLockFile m_trava;
};
