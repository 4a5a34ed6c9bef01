#pragma once

#include "journal/DiskSync.h"

#include <deque>

/// A disk that takes as long as the test says. Only tests that link the journal's room include
/// this.
class FakeDiskSync : public DiskSync
{
public:
    /// Nothing is really brought to the disk, which takes its time.
    bool sparesDisk = false;

    /// Jobs that were begun and are not yet done.
    [[nodiscard]] int jobs() const { return static_cast<int>(m_jobs.size()); }
    /// The oldest job has gathered its lines and is under way.
    void start() { m_jobs.front().begins(); }
    /// It is done, or the disk has failed.
    void finish(const tl::expected<void, FileError> &result = {})
    {
        const Job job = std::move(m_jobs.front());
        m_jobs.pop_front();
        job.done(result && !sparesDisk ? job.job() : result);
    }

    void begin(const AppendedFile::DiskJob &job, std::function<void()> begins, Done done) override
    {
        m_jobs.push_back({job, std::move(begins), std::move(done)});
    }

private:
    struct Job
    {
        AppendedFile::DiskJob job;
        std::function<void()> begins;
        Done done;
    };
    std::deque<Job> m_jobs;
};
