// The programs of distributions, as far as their manuals tell what they read and what they write.

#include <algorithm>
#include <filesystem>
#include <gtest/gtest.h>
#include <sstream>

#include "tests/store_linux/machine.h"

namespace fs = std::filesystem;

namespace VNT::Linux::Sample {

namespace {

constexpr char Image[] = "boot/early-image";
constexpr char GrubConfig[] = "boot/grub/grub.cfg";
constexpr char FedoraEntries[] = "boot/loader/entries/";
constexpr char Kargs[] = "ostree/kargs";

std::vector<std::string> Words(const std::string& text) {
    std::istringstream in(text);
    std::vector<std::string> words;
    for (std::string word; in >> word;) words.push_back(word);
    return words;
}

std::string Joined(const std::vector<std::string>& words) {
    std::string text;
    for (const std::string& word : words) text += (text.empty() ? "" : " ") + word;
    return text;
}

// The value of an option `--name=value`.
std::optional<std::string> OptionOf(const std::string& word, const std::string& name) {
    if (!word.starts_with("--" + name + "=")) return std::nullopt;
    return word.substr(name.size() + 3);
}

std::string OptionsLineOf(const std::string& entry) {
    std::istringstream lines(entry);
    for (std::string line; std::getline(lines, line);) {
        if (line.starts_with("options ")) return line.substr(8);
    }
    return {};
}

}  // namespace

void Machine::AddDebian() {
    Put("etc/default/grub",
        "# If you change this file, run 'update-grub' afterwards to update\n"
        "# /boot/grub/grub.cfg.\n"
        "# For full documentation of the options in this file, see:\n"
        "#   info -f grub -n 'Simple configuration'\n"
        "\n"
        "GRUB_DEFAULT=0\n"
        "GRUB_TIMEOUT=5\n"
        "GRUB_DISTRIBUTOR=`lsb_release -i -s 2> /dev/null || echo Debian`\n"
        "GRUB_CMDLINE_LINUX_DEFAULT=\"quiet\"\n"
        "GRUB_CMDLINE_LINUX=\"\"\n");
    fs::create_directories(Root() / "etc/default/grub.d");
    Put("usr/sbin/grub-mkconfig", "#!/bin/sh\nfor x in ${sysconfdir}/default/grub.d/*.cfg ; do . \"${x}\"; done\n");
    Put("usr/sbin/update-grub", "#!/bin/sh\nexec grub-mkconfig -o /boot/grub/grub.cfg\n");
    Put("usr/sbin/update-initramfs", "#!/bin/sh\n");
    Put("usr/share/initramfs-tools/hook-functions", "copy_file() { echo \"$2\"; }\n");
    Put("etc/initramfs-tools/initramfs.conf", "MODULES=most\n");
    fs::create_directories(Root() / "etc/initramfs-tools/hooks");
    Put(GrubConfig, "");
    Put(Image, "");
    Make({"update-grub"});
    Make({"update-initramfs"});
}

void Machine::Make(const Command& command) {
    std::string output;
    EXPECT_TRUE(RunProgram(command, output));
}

void Machine::AddGrub(const std::string& defaults) {
    Put("etc/default/grub", defaults);
    Put("usr/bin/grub-mkconfig", "#!/bin/sh\n. ${sysconfdir}/default/grub\n");
    Put(GrubConfig, "");
    Make({"grub-mkconfig"});
}

void Machine::AddDracut() {
    Put("usr/bin/dracut", "#!/bin/bash\n");
    Put("etc/dracut.conf", "# PUT YOUR CONFIG IN separate files\n");
    fs::create_directories(Root() / "etc/dracut.conf.d");
    Put(Image, "");
    Make({"dracut"});
}

void Machine::AddFedora() {
    Put("usr/sbin/grubby", "#!/bin/bash\n");
    Put("etc/default/grub",
        "GRUB_TIMEOUT=5\nGRUB_DISTRIBUTOR=\"$(sed 's, release .*$,,g' /etc/system-release)\"\nGRUB_DEFAULT=saved\n"
        "GRUB_CMDLINE_LINUX=\"rhgb quiet\"\nGRUB_ENABLE_BLSCFG=true\n");
    for (const std::string version : {"6.9.5-200.fc40.x86_64", "6.9.7-200.fc40.x86_64"}) {
        Put(FedoraEntries + std::string("0123-") + version + ".conf",
            "title Fedora Linux (" + version + ") 40 (Workstation Edition)\nversion " + version + "\nlinux /vmlinuz-" +
                version + "\ninitrd /initramfs-" + version +
                ".img\noptions root=UUID=1234 ro rootflags=subvol=root rhgb quiet\ngrub_users $grub_users\n"
                "grub_arg --unrestricted\ngrub_class fedora\n");
    }
    AddDracut();
}

std::string Machine::EfiPath(const std::string& name) {
    return "sys/firmware/efi/efivars/" + name + "-4a67b082-0a4c-41cf-b6c7-440b29bb8c4f";
}

void Machine::PutEfiText(const std::string& name, const std::string& text) {
    Bytes bytes{6, 0, 0, 0};
    for (const char c : text) bytes.Append(Bytes{c, 0});
    Put(EfiPath(name), bytes);
}

void Machine::AddSystemdBoot() {
    PutEfiText("LoaderInfo", "systemd-boot 255");
    Put("etc/kernel/cmdline", "root=UUID=1234 rw quiet\n");
    Put("usr/bin/kernel-install", "");
    Put("efi/loader/entries/abcd-6.1.0-13-amd64.conf", "title Sample\noptions root=UUID=1234 rw quiet\n");
    AddDracut();
}

void Machine::AddArch(bool withDropIns) {
    Put("etc/kernel/cmdline", "root=UUID=1234 rw\n");
    Put("usr/bin/kernel-install", "");  // a part of systemd, which nothing calls there
    Put("usr/bin/mkinitcpio", "#!/usr/bin/env bash\n");
    Put("etc/mkinitcpio.conf",
        "# vim:set ft=sh\nMODULES=()\nBINARIES=()\nFILES=()\n"
        "HOOKS=(base udev autodetect modconf kms block filesystems fsck)\n");
    if (withDropIns) fs::create_directories(Root() / "etc/mkinitcpio.conf.d");
    Put("etc/mkinitcpio.d/linux.preset",
        "ALL_kver=\"/boot/vmlinuz-linux\"\nPRESETS=(default)\n#default_image=\"/boot/initramfs-linux.img\"\n"
        "default_uki=\"/efi/EFI/Linux/arch-linux.efi\"\n");
    Put(Image, "");
    Make({"mkinitcpio", "-P"});
}

void Machine::AddSilverblue() {
    Put("run/ostree-booted", "");
    Put("usr/bin/rpm-ostree", "");
    Put(Kargs, "root=UUID=1234 rw rhgb quiet ostree=/ostree/boot.1/fedora/0\n");
    Put(Image, "");
}

std::string Machine::EarlyImage() const { return Get(Image); }

// Each line that a loader has for an ordinary start; where there are several they have to agree.
std::string Machine::CommandLine() const {
    if (Has(Kargs)) return Get(Kargs);
    if (Has(GrubConfig)) return Get(GrubConfig);
    std::string all;
    for (const std::string folder : {"boot/loader/entries", "efi/loader/entries"}) {
        for (const std::string& name : Names(folder)) {
            const std::string line = OptionsLineOf(Get(folder + "/" + name));
            EXPECT_TRUE(all.empty() || line == all) << line;
            all = line;
        }
    }
    return all.empty() ? Get("efi/EFI/Linux/arch-linux.efi") : all;
}

bool Machine::RunProgram(const Command& command, std::string& output) {
    const std::string& name = command[0];
    if (name == "update-grub" || name == "grub-mkconfig") {
        const std::string dropIns = name == "update-grub" ? "for f in etc/default/grub.d/*.cfg; do "
                                                            "[ -e \"$f\" ] && . \"./$f\"; done; "
                                                          : "";
        Put(GrubConfig, Shell("lsb_release() { echo Debian; }; . ./etc/default/grub; " + dropIns +
                              "echo \"linux /vmlinuz $GRUB_CMDLINE_LINUX $GRUB_CMDLINE_LINUX_DEFAULT\""));
    } else if (name == "update-initramfs") {
        std::string files;
        for (const std::string& hook : Names("etc/initramfs-tools/hooks")) {
            if (hook.starts_with(".")) continue;  // as the shell finds them
            const std::string path = "etc/initramfs-tools/hooks/" + hook;
            EXPECT_NE(fs::status(Root() / path).permissions() & fs::perms::owner_exec, fs::perms::none);
            EXPECT_EQ(Shell("sh " + path + " prereqs"), "");
            // The hook with the tree's functions in place of the system's.
            files += Shell("sed \"s,^[.] /,. ./,\" " + path + " > hook.tmp; sh hook.tmp; rm hook.tmp");
        }
        Put(Image, files);
    } else if (name == "dracut") {
        Put(Image, Shell("install_items=; for f in etc/dracut.conf etc/dracut.conf.d/*.conf; do [ -e $f ] && . ./$f; "
                         "done; for i in $install_items; do echo $i; done"));
    } else if (name == "mkinitcpio") {
        Put(Image, Shell(". ./etc/mkinitcpio.conf; for f in etc/mkinitcpio.conf.d/*.conf; do [ -e $f ] && . ./$f; "
                         "done; for i in ${FILES[@]}; do echo $i; done"));
        if (Has("etc/kernel/cmdline")) Put("efi/EFI/Linux/arch-linux.efi", Get("etc/kernel/cmdline"));
    } else if (name == "kernel-install") {
        EXPECT_EQ(command.size(), 4u);
        EXPECT_TRUE(Has(command[3].substr(1))) << command[3];
        Put("efi/loader/entries/abcd-" + command[2] + ".conf",
            "title Sample\noptions " +
                Joined(Words(Get(Has("etc/kernel/cmdline") ? "etc/kernel/cmdline" : "usr/lib/kernel/cmdline"))) + "\n");
    } else if (name == "grubby") {
        RunGrubby(command, output);
    } else if (name == "rpm-ostree") {
        RunRpmOstree(command, output);
    } else {
        ADD_FAILURE() << name;
        return false;
    }
    return true;
}

// grubby(8), as its program for entries of the boot loader specification does it.
void Machine::RunGrubby(const Command& command, std::string& output) {
    const std::vector<std::string> names = Names(FedoraEntries);
    if (command[1] == "--info=ALL") {
        int index = 0;
        for (const std::string& name : names) {
            const std::string entry = Get(FedoraEntries + name);
            const std::string version = name.substr(5, name.size() - 10);
            output += "index=" + std::to_string(index++) + "\nkernel=\"/boot/vmlinuz-" + version + "\"\nargs=\"" +
                      OptionsLineOf(entry) + "\"\nroot=\"UUID=1234\"\n";
        }
        return;
    }
    std::string kernel;
    std::string removed;
    std::string added;
    for (const std::string& word : command) {
        kernel = OptionOf(word, "update-kernel").value_or(kernel);
        removed = OptionOf(word, "remove-args").value_or(removed);
        added = OptionOf(word, "args").value_or(added);
    }
    const auto change = [&](const std::string& line) {
        std::vector<std::string> words = Words(line);
        std::erase_if(words, [&](const std::string& word) { return word.starts_with(removed + "="); });
        if (!added.empty()) words.push_back(added);
        return Joined(words);
    };
    for (const std::string& name : names) {
        if (kernel != "ALL" && kernel != "/boot/vmlinuz-" + name.substr(5, name.size() - 10)) continue;
        std::string entry = Get(FedoraEntries + name);
        const std::string line = OptionsLineOf(entry);
        entry.replace(entry.find(line), line.size(), change(line));
        Put(FedoraEntries + name, entry);
    }
    if (kernel != "ALL") return;
    std::string defaults = Get("etc/default/grub");
    const std::size_t begin = defaults.find("GRUB_CMDLINE_LINUX=\"") + 20;
    const std::size_t end = defaults.find('"', begin);
    defaults.replace(begin, end - begin, change(defaults.substr(begin, end - begin)));
    Put("etc/default/grub", defaults);
}

// rpm-ostree(1): kargs and initramfs-etc.
void Machine::RunRpmOstree(const Command& command, std::string& output) {
    if (command.size() == 2) {
        output = Get(Kargs);
        return;
    }
    EXPECT_TRUE(command[1] == "kargs" || command[1] == "initramfs-etc");
    std::vector<std::string> words = Words(command[1] == "kargs" ? Get(Kargs) : Get(Image));
    for (const std::string& word : command) {
        if (const std::optional<std::string> gone = OptionOf(word, "delete")) {
            const auto found = std::find(words.begin(), words.end(), *gone);
            EXPECT_NE(found, words.end()) << word;
            if (found != words.end()) words.erase(found);
        }
        // The files of the image are a set: to take out what is not in it changes nothing.
        if (const std::optional<std::string> gone = OptionOf(word, "untrack")) std::erase(words, *gone);
        if (const std::optional<std::string> replaced = OptionOf(word, "replace")) {
            const std::size_t sign = replaced->find('=', replaced->find('=') + 1);
            const auto found = std::find(words.begin(), words.end(), replaced->substr(0, sign));
            EXPECT_NE(found, words.end()) << word;
            if (found == words.end()) continue;
            *found = replaced->substr(0, replaced->find('=')) + replaced->substr(sign);
        }
        if (const std::optional<std::string> added = OptionOf(word, "append")) words.push_back(*added);
        if (const std::optional<std::string> added = OptionOf(word, "track")) {
            std::erase(words, *added);
            words.push_back(*added);
        }
    }
    std::string image;
    for (const std::string& word : words) image += word + "\n";
    Put(command[1] == "kargs" ? Kargs : Image, command[1] == "kargs" ? Joined(words) + "\n" : image);
}

}  // namespace VNT::Linux::Sample
