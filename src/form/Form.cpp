#include "form/Form.h"

#include <QCoreApplication>
#include <QLoggingCategory>

namespace {

Q_LOGGING_CATEGORY(runTrace, "sorvanta.run", QtCriticalMsg)

// The texts whose change is an edit of the project.
bool isPartOfProject(Control control)
{
    switch (control) {
    case Control::txtControl:
    case Control::txtDestinatari:
    case Control::txtEmail:
    case Control::txtEmailMittente:
    case Control::txtHTML:
    case Control::txtMittente:
    case Control::txtNMsg:
    case Control::txtOggetto:
    case Control::txtPausa:
    case Control::txtServer:
        return true;
    default:
        return false;
    }
}

} // namespace

Form::Form(Language language, QObject *parent)
    : QObject(parent), m_language(language), m_contents(Controls::count())
{
    const QString noTime = QStringLiteral("--:--");
    at(Control::lblTrascorso) = {noTime, QStringLiteral("0")};
    at(Control::lblRimanente) = {noTime, QStringLiteral("-")};
    at(Control::lblTimer).text = QCoreApplication::translate("Pacing", "Not started");
    at(Control::lblSize).text = QStringLiteral("0 KB");
}

void Form::setText(Control control, const QString &text)
{
    if (at(control).text == text)
        return;
    at(control).text = text;
    if (isPartOfProject(control))
        m_projectModified = true;
    Q_EMIT changed(control);
}

QString Form::tag(Control control) const
{
    return control == Control::cmdPausa ? pauseWord(m_runState, m_language) : at(control).tag;
}

void Form::setTag(Control control, const QString &tag)
{
    if (at(control).tag == tag)
        return;
    at(control).tag = tag;
    Q_EMIT changed(control);
}

void Form::setChecked(Control control, bool checked)
{
    if (at(control).checked == checked)
        return;
    at(control).checked = checked;
    if (control == Control::chkRicevuta)
        m_projectModified = true;
    Q_EMIT changed(control);
}

void Form::setCaption(const QString &caption)
{
    m_caption = caption;
    Q_EMIT captionChanged();
}

void Form::setRunState(RunState state, const char *reason)
{
    qCDebug(runTrace, "%s -> %s: %s", nameOf(m_runState), nameOf(state), reason);
    const bool changes = state != m_runState;
    m_runState = state;
    if (changes)
        Q_EMIT runStateChanged(state);
}

void Form::countProjectReplaced()
{
    ++m_situation.project;
    Q_EMIT situationChanged();
}

void Form::countRunChanged()
{
    ++m_situation.run;
    Q_EMIT situationChanged();
}
