#include "core/file/writing/SaidaVrt.h"

#include <QFile>

#include <cerrno>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {
// Big enough that a declaration of a hundred thousand records is a few hundred writes.
constexpr int TamanhoBuffer = 256 * 1024;
}  // namespace

SaidaVrt::SaidaVrt() : m_cp1252("windows-1252")
{
    if (!m_cp1252.isValid())
        qFatal("Conversão para Windows-1252 indisponível");
}

SaidaVrt::~SaidaVrt()
{
    abandona();
}

SaidaVrt::Erro SaidaVrt::erroDoSistema(int codigo)
{
    switch (codigo) {
    case EWOULDBLOCK:
    case EBUSY:
    case ETXTBSY:
        return {55, QStringLiteral("Arquivo já aberto")};
    case ENOSPC:
    case EDQUOT:
    case EFBIG:
        return {61, QStringLiteral("Disco cheio")};
    case EACCES:
    case EPERM:
    case EROFS:
        return {70, QStringLiteral("Permissão negada")};
    case ENOENT:
    case ENOTDIR:
        return {76, QStringLiteral("Caminho não encontrado")};
    case EISDIR:
        return {75, QStringLiteral("Erro de acesso ao caminho/arquivo")};
    default:
        return {57, QStringLiteral("Erro de E/S no dispositivo")};
    }
}

void SaidaVrt::abre(const QString& caminho)
{
    abandona();
    m_coluna = 1;
    m_buffer.resize(0);
    m_buffer.reserve(TamanhoBuffer + 4096);
    // Opened without truncating, so that a file another program is using is left untouched when it is refused.
    const QByteArray nome = QFile::encodeName(caminho);
    const int fd = ::open(nome.constData(), O_WRONLY | O_CREAT | O_CLOEXEC, 0666);
    if (fd < 0)
        throw erroDoSistema(errno);
    if (::flock(fd, LOCK_EX | LOCK_NB) != 0) {
        const int codigo = errno;
        ::close(fd);
        throw erroDoSistema(codigo);
    }
    struct flock trava = {};
    trava.l_type = F_WRLCK;
    trava.l_whence = SEEK_SET;
    if (::fcntl(fd, F_GETLK, &trava) == 0 && trava.l_type != F_UNLCK) {
        ::close(fd);
        throw erroDoSistema(EWOULDBLOCK);
    }
    struct stat info = {};
    if (::fstat(fd, &info) == 0 && S_ISREG(info.st_mode) && ::ftruncate(fd, 0) != 0) {
        const int codigo = errno;
        ::close(fd);
        throw erroDoSistema(codigo);
    }
    m_fd = fd;
}

void SaidaVrt::escreve(const LinhaRegistro& linha)
{
    // The next record begins at column 1: a line left open by a record without its own line end ends here.
    if (m_coluna > 1) {
        m_buffer += "\r\n";
        m_coluna = 1;
    }
    const QByteArray& bytes = linha.bytes();
    if (!bytes.isNull()) {
        m_buffer += bytes;
        m_coluna = 1 + int(bytes.size());
    } else {
        m_texto.resize(0);
        m_coluna = linha.compoeEm(m_texto, m_coluna);
        acrescentaCp1252(m_texto);
    }
    if (!linha.layout().semFimDeLinha) {
        m_buffer += "\r\n";
        m_coluna = 1;
    }
    if (m_buffer.size() >= TamanhoBuffer)
        descarrega();
}

void SaidaVrt::acrescentaCp1252(const QString& texto)
{
    // Windows-1252 is Latin-1 outside 0x80-0x9F: such text, nearly every record, is copied byte by byte; any
    // other goes through the converter.
    const qsizetype inicio = m_buffer.size();
    m_buffer.resize(inicio + texto.size());
    char* destino = m_buffer.data() + inicio;
    for (const QChar c : texto) {
        const char16_t u = c.unicode();
        if (u >= 0x100 || (u >= 0x80 && u < 0xA0)) {
            m_buffer.resize(inicio);
            m_buffer += m_cp1252.encode(texto);
            return;
        }
        *destino++ = static_cast<char>(u);
    }
}

void SaidaVrt::descarrega()
{
    const char* dados = m_buffer.constData();
    qsizetype resta = m_buffer.size();
    while (resta > 0) {
        const ssize_t n = ::write(m_fd, dados, static_cast<size_t>(resta));
        if (n < 0) {
            if (errno == EINTR)
                continue;
            const int codigo = errno;
            m_buffer.resize(0);
            throw erroDoSistema(codigo);
        }
        dados += n;
        resta -= n;
    }
    m_buffer.resize(0);
}

void SaidaVrt::fecha()
{
    if (m_fd < 0)
        return;
    descarrega();
    const int fd = m_fd;
    m_fd = -1;
    if (::close(fd) != 0)
        throw erroDoSistema(errno);
}

void SaidaVrt::abandona()
{
    if (m_fd < 0)
        return;
    // What was composed before the failure stays on the disk, as far as it can be written.
    try {
        descarrega();
    } catch (const Erro&) {
    }
    ::close(m_fd);
    m_fd = -1;
    m_buffer.resize(0);
}
