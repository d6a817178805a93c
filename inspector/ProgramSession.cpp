// SPDX-License-Identifier: BSD-3-Clause
#include "ProgramSession.h"

#include "CommandLine.h"
#include "CrvServices.h"
#include "CrvShell.h"
#include "DefaultPlugin.h"
#include "InspectorSession.h"
#include "Messages.h"
#include "Picture.h"
#include "ProgramRequest.h"
#include "SceneRoots.h"
#include "SceneSearch.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QLibrary>

#include <cerrno>
#include <cstdio>
#include <cstdlib>

#include <unistd.h>

namespace {

constexpr int refused = 2;

[[noreturn]] void end(int status)
{
    std::fflush(nullptr);
    std::_Exit(status);
}

bool fail(const QString& error)
{
    complainToTerminal(QStringLiteral("corvane: ") + error);
    return false;
}

bool writeTo(int stream, const QByteArray& output)
{
    const char* next = output.constData();
    for (qsizetype left = output.size(); left > 0;) {
        const ssize_t written = write(stream, next, static_cast<std::size_t>(left));
        if (written < 0 && errno == EINTR)
            continue;
        if (written <= 0)
            return fail(CommandLine::tr("the standard output stream can't be written"));
        next += written;
        left -= written;
    }
    return true;
}

} // namespace

ProgramSession::ProgramSession()
    : m_request(std::make_unique<ProgramRequest>(ProgramRequest::read()))
    , m_commandLine(std::make_unique<CommandLine>())
{
    if (m_request->options.isEmpty())
        return;
    // They were found to be right before the program was started.
    *m_commandLine = CommandLine::parse(
        QStringList { QString() } + m_request->options + QStringList { QStringLiteral("--run") });
    m_pictureFile = QFileInfo(m_commandLine->picture).absoluteFilePath();
}

ProgramSession::~ProgramSession() = default;

bool ProgramSession::isFirstProcess() const { return m_request->process == getpid(); }
void ProgramSession::applicationMade() const { m_request->remove(); }
std::optional<double> ProgramSession::after() const { return m_commandLine->after; }
bool ProgramSession::endsProgram() const { return m_commandLine->endsProgram(); }
bool ProgramSession::needsWindow() const { return m_commandLine->script.steps.isEmpty(); }

void ProgramSession::loadFiles() { QLibrary(defaultPluginFile()).load(); }

void ProgramSession::prepareWindow() const
{
    if (CrvShell::getInstance())
        return; // the program has an inspector of its own
    InspectorSession* const session = InspectorSession::make(
        endsProgram() ? InspectorSession::Memory::None : InspectorSession::Memory::Kept);
    session->window().setAttribute(Qt::WA_ShowWithoutActivating);
}

bool ProgramSession::select() const
{
    if (m_commandLine->selection.isEmpty())
        return true;
    CrvServices* const services = CrvServices::getInstance();
    SceneSearch search(plainRoots(services->getRoots()));
    if (!search.find(m_commandLine->selection))
        return fail(search.errorText());
    services->selectNode(search.node());
    if (search.field())
        services->selectField(search.field());
    return true;
}

void ProgramSession::answer(const std::function<Roots()>& roots) const
{
    const bool answered = needsWindow() ? select() && takePicture() : runSteps(roots);
    end(answered ? 0 : refused);
}

bool ProgramSession::runSteps(const std::function<Roots()>& roots) const
{
    QByteArray output;
    for (const SceneScript::Step& step : m_commandLine->script.steps) {
        const Roots held = roots();
        SceneScript script(plainRoots(held));
        if (!script.run({ step }))
            return fail(script.errorText());
        output += script.output();
        // What the setter has put off is done before the next one looks.
        if (step.kind == SceneScript::Step::Kind::Set)
            QCoreApplication::processEvents();
    }
    return writeTo(m_request->output, output);
}

bool ProgramSession::takePicture() const
{
    if (!InspectorSession::getInstance())
        return fail(CommandLine::tr("the program has a window for extensions of its own"));
    QString error;
    if (!Picture::take(InspectorSession::getInstance()->window(), m_commandLine->pictureSize,
            m_pictureFile, &error))
        return fail(error);
    return writeTo(
        m_request->output, CommandLine::tr("Wrote %1").arg(m_commandLine->picture).toUtf8() + '\n');
}
