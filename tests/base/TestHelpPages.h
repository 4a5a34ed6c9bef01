#pragma once

#include <QObject>

class TestHelpPages : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void spacesOfTheProgramFolderStayUnchanged();
    void backslashesBecomeSlashes();
    void helpBesideTheProgramComesFirst();
    void installedHelpIsFoundBesideTheExecutable();
};
