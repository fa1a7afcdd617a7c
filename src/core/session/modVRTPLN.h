#pragma once
// Session values: process-wide, owned by the start-up module and read and written by every screen.
#include <QString>

namespace modVRTPLN {

// Folder of the executable, without a trailing separator.
inline QString CaminhoAplicacao;
// Folder of the database: CaminhoAplicacao, or the user's data folder when the program's folder cannot be written.
inline QString CaminhoDados;

// Child screen now open: 0 none, 1 chooser, 2 individual editor, 3 file chooser, 4 monthly editor, 5 product assistant.
inline int TelaAtual = 0;
// The open transaction holds changes that the user has not saved yet.
inline bool AlteracaoPendente = false;
// "SIM" when the file chooser's next operation is a reference table import, "NAO" otherwise.
inline QString ArquivoImportaTabela = QStringLiteral("NAO");
inline bool ProdutoPeloMenu = false;
inline bool UnidadePeloMenu = false;
// Keys an editor leaves before it shows a picker, so that the picker knows which fields to fill.
inline QString ChamadorNCM;
inline QString ChamadorProduto;
inline QString ChamadorMoeda;

inline const QString VersaoPrograma = QStringLiteral("04.00");
inline const QString VersaoLayout = QStringLiteral("02.00");
inline const QString NomeArquivoBanco = QStringLiteral("PLN_VRT_v2.mdb");

enum Tela { Nenhuma = 0, Escolha = 1, Individual = 2, ManipulaArquivo = 3, Mensal = 4, AssistenteProduto = 5 };

// Full path of the database file.
QString ArquivoBanco();

// Decides CaminhoDados: the program's folder when it can be written, else the user's data folder, where the
// delivered database is copied on first use. Returns false when no database can be found there.
bool LocalizaBanco();
// The second half of LocalizaBanco: the user's data folder, with the delivered database copied there if missing.
bool LocalizaBancoNaPastaDoUsuario();

}  // namespace modVRTPLN
