// Deletes a library-wide object when the library goes: the object hands
// itself over at its first use, and nothing has to remember to free it.
#pragma once

template <class T>
class SingletonDestroyer {
public:
    SingletonDestroyer() = default;
    ~SingletonDestroyer() { delete m_pObject; }
    SingletonDestroyer(const SingletonDestroyer&) = delete;
    SingletonDestroyer& operator=(const SingletonDestroyer&) = delete;
    void SetDoomed(T* pObject) { m_pObject = pObject; }

private:
    T* m_pObject = nullptr;
};
