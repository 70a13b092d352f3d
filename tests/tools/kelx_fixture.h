// SPDX-License-Identifier: GPL-3.0-or-later
// Drives the command line as a process, as a script would, on a small sample.
#pragma once

#include "sample/sample.h"
#include "support/temporary_folder.h"

#include <gtest/gtest.h>

#include <sys/wait.h>

using kelx::test::TemporaryFolder;

struct Outcome {
    int status = -1;
    std::string out, err;
};

class KelxTest : public testing::Test {
protected:
    static void SetUpTestSuite() {
        folder = new TemporaryFolder;
        kelx::tools::SampleRequest request;
        request.folder = folder->path() / "sample";
        request.persons = 3000;
        kelx::tools::writeSample(request);
    }
    static void TearDownTestSuite() { delete folder; }

    /// Arguments as a shell reads them; @ stands for the test's folder.
    static Outcome kelx(std::string arguments) {
        for (std::size_t at; (at = arguments.find('@')) != std::string::npos;)
            arguments.replace(at, 1, folder->path().string());
        const std::string out = (folder->path() / "out").string();
        const std::string err = (folder->path() / "err").string();
        const std::string command =
            std::string("</dev/null >") + out + " 2>" + err + " " + KELX_PROGRAM + " " + arguments;
        const int status = std::system(command.c_str());
        return {WIFEXITED(status) ? WEXITSTATUS(status) : -1, folder->read("out"),
                folder->read("err")};
    }
    static std::string path(const std::string& name) { return (folder->path() / name).string(); }

    static inline TemporaryFolder* folder = nullptr;
};
