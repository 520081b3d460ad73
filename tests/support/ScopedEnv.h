// Environment variables changed for a test and put back as they were after it.
#pragma once

#include <cstdlib>
#include <optional>
#include <string>
#include <utility>
#include <vector>

class CScopedEnv {
public:
    CScopedEnv() = default;
    CScopedEnv(const CScopedEnv&) = delete;
    CScopedEnv& operator=(const CScopedEnv&) = delete;
    ~CScopedEnv() {
        for (auto it = m_saved.rbegin(); it != m_saved.rend(); ++it)
            Put(it->first.c_str(), it->second ? it->second->c_str() : nullptr);
    }
    // Sets the variable; a null value removes it.
    void Set(const char* name, const char* value) {
        const char* old = std::getenv(name);
        m_saved.emplace_back(name, old ? std::optional<std::string>(old) : std::nullopt);
        Put(name, value);
    }

private:
    static void Put(const char* name, const char* value) {
        if (value)
            ::setenv(name, value, 1);
        else
            ::unsetenv(name);
    }
    std::vector<std::pair<std::string, std::optional<std::string>>> m_saved;
};
