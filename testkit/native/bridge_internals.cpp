// JNI side of simctl.BridgeInternals: reaches symbols the bridge keeps hidden (the trampolines
// and its globals) through the symbol table of its file, so that tests can call a trampoline no
// native hands to the library, and read or reset a global, without the bridge exporting more.
#include <dlfcn.h>
#include <elf.h>
#include <jni.h>
#include <link.h>

#include <cstdint>
#include <cstring>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

#include "jni_util.h"

namespace {

using simctl::ThrowState;
using simctl::ToString;

// The load bias of an already loaded library, or false if it is not loaded.
bool LoadBias(const std::string& path, uintptr_t* bias) {
    void* handle = dlopen(path.c_str(), RTLD_LAZY | RTLD_NOLOAD);
    if (handle == nullptr) {
        return false;
    }
    link_map* map = nullptr;
    const bool found = dlinfo(handle, RTLD_DI_LINKMAP, &map) == 0 && map != nullptr;
    if (found) {
        *bias = map->l_addr;
    }
    dlclose(handle);
    return found;
}

// Addresses of the defined symbols in the file's full symbol table whose name equals `name`, or
// starts with it when `prefix` is set (compiler-split parts such as "name.cold" never match).
bool FindSymbols(const std::string& path, const std::string& name, bool prefix,
                 std::vector<uint64_t>* values, std::string* error) {
    std::ifstream in(path, std::ios::binary);
    const std::vector<char> file((std::istreambuf_iterator<char>(in)),
                                 std::istreambuf_iterator<char>());
    if (file.size() < sizeof(Elf64_Ehdr) || std::memcmp(file.data(), ELFMAG, SELFMAG) != 0) {
        *error = path + " is not an ELF file";
        return false;
    }
    const auto* header = reinterpret_cast<const Elf64_Ehdr*>(file.data());
    const auto* sections = reinterpret_cast<const Elf64_Shdr*>(file.data() + header->e_shoff);
    for (unsigned k = 0; k < header->e_shnum; ++k) {
        if (sections[k].sh_type != SHT_SYMTAB) {
            continue;
        }
        const char* strings = file.data() + sections[sections[k].sh_link].sh_offset;
        const auto* symbols =
            reinterpret_cast<const Elf64_Sym*>(file.data() + sections[k].sh_offset);
        const std::size_t count = sections[k].sh_size / sizeof(Elf64_Sym);
        for (std::size_t i = 0; i < count; ++i) {
            const std::string symbol = strings + symbols[i].st_name;
            const bool matches = prefix ? symbol.compare(0, name.size(), name) == 0 &&
                                              symbol.find('.') == std::string::npos
                                        : symbol == name;
            if (matches && symbols[i].st_shndx != SHN_UNDEF) {
                values->push_back(symbols[i].st_value);
            }
        }
        return true;
    }
    *error = path + " has no symbol table (stripped?)";
    return false;
}

}  // namespace

extern "C" {

JNIEXPORT jlong JNICALL Java_simctl_BridgeInternals_address(JNIEnv* env, jclass, jstring jPath,
                                                            jstring jName, jboolean prefix) {
    const std::string path = ToString(env, jPath);
    const std::string name = ToString(env, jName);
    uintptr_t bias = 0;
    if (!LoadBias(path, &bias)) {
        ThrowState(env, path + " is not loaded");
        return 0;
    }
    std::vector<uint64_t> values;
    std::string error;
    if (!FindSymbols(path, name, prefix, &values, &error)) {
        ThrowState(env, error);
        return 0;
    }
    if (values.size() != 1) {
        ThrowState(env, std::to_string(values.size()) + " symbols match " + name + " in " + path);
        return 0;
    }
    return static_cast<jlong>(bias + values[0]);
}

JNIEXPORT jlong JNICALL Java_simctl_BridgeInternals_javaVm(JNIEnv* env, jclass) {
    JavaVM* vm = nullptr;
    env->GetJavaVM(&vm);
    return static_cast<jlong>(reinterpret_cast<uintptr_t>(vm));
}

JNIEXPORT jlong JNICALL Java_simctl_BridgeInternals_readPointer(JNIEnv*, jclass, jlong address) {
    void* value = nullptr;
    std::memcpy(&value, reinterpret_cast<const void*>(static_cast<uintptr_t>(address)),
                sizeof(value));
    return static_cast<jlong>(reinterpret_cast<uintptr_t>(value));
}

JNIEXPORT jint JNICALL Java_simctl_BridgeInternals_readInt(JNIEnv*, jclass, jlong address) {
    int32_t value = 0;
    std::memcpy(&value, reinterpret_cast<const void*>(static_cast<uintptr_t>(address)),
                sizeof(value));
    return value;
}

JNIEXPORT void JNICALL Java_simctl_BridgeInternals_writePointer(JNIEnv*, jclass, jlong address,
                                                                jlong value) {
    void* p = reinterpret_cast<void*>(static_cast<uintptr_t>(value));
    std::memcpy(reinterpret_cast<void*>(static_cast<uintptr_t>(address)), &p, sizeof(p));
}

}  // extern "C"
