#pragma once
#include <QString>
#include <QStringList>

// Splits an SQL script into single statements: a statement ends with ";" at the end of a line, except inside
// a CREATE TRIGGER body, which ends at "END;". Comment lines ("--") are dropped.
QStringList DivideScriptSql(const QString& script);
