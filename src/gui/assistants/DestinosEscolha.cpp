#include "gui/assistants/DestinosEscolha.h"

#include <QLineEdit>

namespace {

QStringList chavesMoeda()
{
    // Product or input, individual or monthly, DI or DSI, and the value, insurance or freight currency.
    QStringList chaves;
    for (const QString& mensal : {QString(), QStringLiteral("Mensal")}) {
        for (const QString& documento : {QStringLiteral("DI"), QStringLiteral("DSI")}) {
            for (const QString& valor : {QStringLiteral("Prod"), QStringLiteral("SI"), QStringLiteral("FI")})
                chaves << QStringLiteral("produtoPE") + mensal + documento + valor;
        }
        for (const QString& documento : {QStringLiteral("DI"), QStringLiteral("DSI")}) {
            for (const QString& valor : {QStringLiteral("Ins"), QStringLiteral("SI"), QStringLiteral("FI")})
                chaves << QStringLiteral("InsumoPISemPPB") + mensal + documento + valor;
        }
    }
    return chaves;
}

}  // namespace

const QStringList& DestinosEscolha::ChavesProduto()
{
    static const QStringList chaves = {
        QStringLiteral("produto"),                   QStringLiteral("insumo"),
        QStringLiteral("produtoPE"),                 QStringLiteral("produtoPIcomPPBDCRE"),
        QStringLiteral("produtoPIcomPPBDCR"),        QStringLiteral("produto100Nacional"),
        QStringLiteral("produto100NacionalMensal"),  QStringLiteral("produtoDCREPIcomPPBMensal"),
        QStringLiteral("produtoDCRPIcomPPBMensal"),  QStringLiteral("produtoPEMensal"),
        QStringLiteral("produtoPIsemPPBMensal"),     QStringLiteral("InsumoPIsemPPBMensal")};
    return chaves;
}

const QStringList& DestinosEscolha::ChavesNcm()
{
    static const QStringList chaves = {
        QStringLiteral("produtoPE"),          QStringLiteral("produto"),
        QStringLiteral("insumo"),             QStringLiteral("produto100Nacional"),
        QStringLiteral("produto100NacionalMensal"), QStringLiteral("produtoPEMensal"),
        QStringLiteral("produtoPIsemPPBMensal"),    QStringLiteral("InsumoPIsemPPBMensal")};
    return chaves;
}

const QStringList& DestinosEscolha::ChavesMoeda()
{
    static const QStringList chaves = chavesMoeda();
    return chaves;
}

DestinosEscolha& DestinosEscolha::produto()
{
    static DestinosEscolha tabela(&ChavesProduto());
    return tabela;
}

DestinosEscolha& DestinosEscolha::ncm()
{
    static DestinosEscolha tabela(&ChavesNcm());
    return tabela;
}

DestinosEscolha& DestinosEscolha::moeda()
{
    static DestinosEscolha tabela(&ChavesMoeda());
    return tabela;
}

bool DestinosEscolha::guarda(const QString& chave, Destino destino, QObject* dono)
{
    if (!m_chaves->contains(chave))
        return false;
    destino.dono = dono;
    m_destinos.insert(chave, destino);
    if (dono) {
        // Only the entry this owner made goes with it: another editor may have registered the key since.
        QObject::connect(dono, &QObject::destroyed, [this, chave, dono] {
            auto it = m_destinos.find(chave);
            if (it != m_destinos.end() && (it->dono.isNull() || it->dono.data() == dono))
                m_destinos.erase(it);
        });
    }
    return true;
}

bool DestinosEscolha::registra(const QString& chave, QLineEdit* codigo, QLineEdit* complemento, QObject* dono)
{
    Destino d;
    d.codigo = codigo;
    d.complemento = complemento;
    return guarda(chave, d, dono);
}

bool DestinosEscolha::registra(const QString& chave, Entrega entrega, QObject* dono)
{
    Destino d;
    d.entrega = std::move(entrega);
    return guarda(chave, d, dono);
}

void DestinosEscolha::remove(const QString& chave)
{
    m_destinos.remove(chave);
}

bool DestinosEscolha::registrada(const QString& chave) const
{
    return m_destinos.contains(chave);
}

QString DestinosEscolha::valorAtual(const QString& chave) const
{
    const auto it = m_destinos.constFind(chave);
    if (it == m_destinos.constEnd() || it->codigo.isNull())
        return QString();
    return it->codigo->text().trimmed();
}

bool DestinosEscolha::entrega(const QString& chave, const QString& codigo, const QString& complemento) const
{
    const auto it = m_destinos.constFind(chave);
    if (it == m_destinos.constEnd())
        return false;
    if (it->entrega) {
        it->entrega(codigo, complemento);
        return true;
    }
    // The code first, which runs its change step; then the chosen row's description or unit, so that the field
    // shows the row the user chose even when the code alone would not name one product (a code that is the
    // beginning of another).
    if (!it->codigo.isNull())
        it->codigo->setText(codigo);
    if (!it->complemento.isNull())
        it->complemento->setText(complemento);
    return true;
}
