#include "store/linux/system_host.h"

#include <cerrno>
#include <csignal>
#include <gtest/gtest.h>

#include "tests/store_linux/machine.h"

namespace fs = std::filesystem;

namespace VNT::Linux::Sample {

TEST(SystemHost, LinksStayBelowTheRoot) {
    Machine machine;
    machine.Put("a/b/file", "x");
    machine.Link("up", "../../../../a/b");
    machine.Link("absolute", "/a/b/file");
    machine.Link("a/chain", "../absolute");
    machine.Link("loop", "loop2");
    machine.Link("loop2", "loop");
    EXPECT_EQ(machine.Resolve("up/file"), "a/b/file");
    EXPECT_EQ(machine.Resolve("a/chain"), "a/b/file");
    EXPECT_EQ(machine.Resolve("../../a/b/../b/./file"), "a/b/file");
    EXPECT_EQ(machine.Resolve("loop"), std::nullopt);
    EXPECT_EQ(machine.Resolve("missing"), std::nullopt);
    EXPECT_EQ(machine.Resolve(std::string("a\0b", 3)), std::nullopt);
    EXPECT_FALSE(machine.Read("loop", 10));
    EXPECT_TRUE(machine.Write("loop/x", ToBytes("y"), false));
    EXPECT_EQ(machine.Names("loop"), std::vector<std::string>());
}

TEST(SystemHost, ReadsWholeFilesUpToTheLimit) {
    Machine machine;
    machine.Put("file", std::string(1000, 'x'));
    EXPECT_EQ(machine.Read("file", 1000)->Size(), 1000);
    EXPECT_FALSE(machine.Read("file", 999));
    machine.Put("empty", "");
    EXPECT_EQ(machine.Read("empty", 0), Bytes());
    EXPECT_FALSE(machine.Read("none", 10));
}

TEST(SystemHost, ReadsToTheEndThoughASignalEndedACallBefore) {
    Machine machine;
    machine.Put("file", "text");
    errno = EINTR;
    EXPECT_EQ(machine.Read("file", 10)->Size(), 4);
}

TEST(SystemHost, NewFilesAreReadableAndRunWhereTheyAreToRun) {
    Machine machine;
    EXPECT_FALSE(machine.Write("x/y/plain", ToBytes("1"), false));
    EXPECT_FALSE(machine.Write("x/y/script", ToBytes("2"), true));
    EXPECT_EQ(fs::status(machine.Root() / "x/y/plain").permissions(), static_cast<fs::perms>(0644));
    EXPECT_EQ(fs::status(machine.Root() / "x/y/script").permissions(), static_cast<fs::perms>(0755));
    EXPECT_EQ(machine.Names("x/y"), (std::vector<std::string>{"plain", "script"}));
    EXPECT_TRUE(machine.RemoveFolder("x/y"));
    EXPECT_FALSE(machine.Remove("x/y/plain"));
    EXPECT_FALSE(machine.Remove("x/y/script"));
    EXPECT_FALSE(machine.RemoveFolder("x/y"));
    EXPECT_FALSE(machine.Has("x/y"));
}

TEST(SystemHost, AttributeIsWrittenWhereItIsAndNowhereElse) {
    Machine machine;
    machine.Put("sys/value", "a longer one before\n");
    EXPECT_FALSE(machine.SystemHost::WriteAttribute("sys/value", ToBytes("new")));
    EXPECT_EQ(machine.Get("sys/value"), "new");
    EXPECT_TRUE(machine.SystemHost::WriteAttribute("sys/missing", ToBytes("new")));
    EXPECT_FALSE(machine.Has("sys/missing"));
    fs::create_directories(machine.Root() / "sys/folder");
    EXPECT_TRUE(machine.SystemHost::WriteAttribute("sys/folder", ToBytes("new")));
}

TEST(SystemHost, NoProgramRunsBelowAnotherRoot) {
    Machine machine;
    int status = 0;
    machine.Put("bin/true", "");
    EXPECT_TRUE(machine.SystemHost::Run({"true"}, status, nullptr));
    EXPECT_FALSE(machine.SystemHost::MayRun());
}

TEST(SystemHost, ProgramsOfTheMachineTellTheirStatusAndOutput) {
    SystemHost host("/");
    int status = -1;
    std::string output;
    ASSERT_FALSE(host.Run({"echo", "a  b", "$HOME"}, status, &output));
    EXPECT_EQ(status, 0);
    EXPECT_EQ(output, "a  b $HOME\n");
    ASSERT_FALSE(host.Run({"false"}, status, nullptr));
    EXPECT_EQ(status, 1);
    EXPECT_TRUE(host.Run({"no-such-program-of-this-name"}, status, nullptr));
    // More than a pipe holds, and more than is kept.
    ASSERT_FALSE(host.Run({"head", "-c", "3000000", "/dev/zero"}, status, &output));
    EXPECT_EQ(status, 0);
}

TEST(SystemHost, ASignalWhileAProgramRunsChangesNothing) {
    struct sigaction caught = {}, before = {};
    caught.sa_handler = [](int) {};  // without SA_RESTART: calls that wait end with an error
    ASSERT_EQ(sigaction(SIGUSR1, &caught, &before), 0);
    SystemHost host("/");
    int status = -1;
    std::string output;
    EXPECT_FALSE(host.Run({"sh", "-c", "kill -s USR1 $PPID; echo done; kill -s USR1 $PPID"}, status, &output));
    EXPECT_EQ(status, 0);
    EXPECT_EQ(output, "done\n");
    sigaction(SIGUSR1, &before, nullptr);
}

TEST(SystemHost, LockIsHeldUntilItsOwnerGoes) {
    Machine machine;
    std::shared_ptr<void> lock = machine.Lock("run/lock/x");
    EXPECT_NE(lock, nullptr);
    lock.reset();
    EXPECT_NE(machine.Lock("run/lock/x"), nullptr);
    machine.Link("run/planted", "/etc/passwd");
    machine.Put("etc/passwd", "root");
    EXPECT_NE(machine.Lock("run/planted"), nullptr);
    EXPECT_EQ(machine.Get("etc/passwd"), "root");
}

}  // namespace VNT::Linux::Sample
