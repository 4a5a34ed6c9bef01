#include "journal/DiskSync.h"

#include <QPointer>
#include <QThreadPool>
#include <QTimer>

namespace {

// A run at full speed makes some ten thousand records a second; a hundred jobs a second cost it
// next to nothing.
constexpr int Gathering = 10; // milliseconds

} // namespace

void GroupedSync::begin(const AppendedFile::DiskJob &job, std::function<void()> begins, Done done)
{
    const auto work = [guard = QPointer(this), job, done = std::move(done)] {
        const auto result = job();
        QMetaObject::invokeMethod(
            QThreadPool::globalInstance(),
            [guard, done, result] {
                if (guard)
                    done(result);
            },
            Qt::QueuedConnection);
    };
    QTimer::singleShot(Gathering, Qt::PreciseTimer, this, [begins = std::move(begins), work] {
        begins();
        QThreadPool::globalInstance()->start(work);
    });
}
