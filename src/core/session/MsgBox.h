#pragma once
// The one seam through which every message box of the program passes. The program installs a handler that
// shows a QMessageBox, vrt-cli one that prints and answers from its options, tests one that answers from a
// script. Styles and answers keep the old values so that call sites read like the system's own.
#include <QString>
#include <functional>

namespace Msg {
// Buttons.
constexpr int OKOnly = 0;
constexpr int OKCancel = 1;
constexpr int YesNoCancel = 3;
constexpr int YesNo = 4;
// Icons.
constexpr int Critical = 16;
constexpr int Question = 32;
constexpr int Exclamation = 48;  // the warning icon
constexpr int Information = 64;
// Default button.
constexpr int DefaultButton1 = 0;
constexpr int DefaultButton2 = 256;
constexpr int DefaultButton3 = 512;

constexpr int MascaraBotoes = 7;
constexpr int MascaraIcone = 112;
constexpr int MascaraPadrao = 768;

// Answers.
constexpr int OK = 1;
constexpr int Cancel = 2;
constexpr int Yes = 6;
constexpr int No = 7;
}  // namespace Msg

// The caption of the main window and the default title of every box.
inline const QString TituloPadrao = QStringLiteral("VRT - Vistoria de Remessa Tributada");

using ManipuladorMsg = std::function<int(const QString& texto, int estilo, const QString& titulo)>;

// Shows a box through the installed handler; an empty title becomes TituloPadrao.
int MsgBox(const QString& texto, int estilo = Msg::OKOnly, const QString& titulo = QString());

// Replaces the handler and returns the previous one.
ManipuladorMsg InstalaManipuladorMsg(ManipuladorMsg manipulador);

// The answer a box gives when nobody can be asked: its default button.
int RespostaPadrao(int estilo);

// The handler for programs without windows: prints to stderr and answers with the default button.
int ManipuladorConsole(const QString& texto, int estilo, const QString& titulo);
