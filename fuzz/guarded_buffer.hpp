#ifndef OVI18N_FUZZ_GUARDED_BUFFER_HPP
#define OVI18N_FUZZ_GUARDED_BUFFER_HPP

#include <sys/mman.h>
#include <unistd.h>

#include <cstddef>
#include <cstdlib>
#include <cstring>

// A copy of a fuzz input that ends exactly where an unreadable page begins. ICU is not built
// with AddressSanitizer, so a read past the end of a heap buffer inside it goes unseen; here the
// first byte past the input faults at once.
template <class T>
class guarded_buffer {
public:
    guarded_buffer(T const* data, std::size_t count) : count_(count) {
        std::size_t const page = static_cast<std::size_t>(sysconf(_SC_PAGESIZE));
        std::size_t const bytes = count * sizeof(T);
        mapped_ = ((bytes + page - 1) / page + 1) * page;
        void* base =
            mmap(nullptr, mapped_, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
        if (base == MAP_FAILED) {
            std::abort();
        }
        base_ = static_cast<char*>(base);
        char* guard = base_ + mapped_ - page;
        if (mprotect(guard, page, PROT_NONE) != 0) {
            std::abort();
        }
        data_ = reinterpret_cast<T*>(guard - bytes);
        if (bytes != 0) {
            std::memcpy(data_, data, bytes);
        }
    }
    guarded_buffer(guarded_buffer const&) = delete;
    guarded_buffer& operator=(guarded_buffer const&) = delete;
    ~guarded_buffer() { munmap(base_, mapped_); }

    T const* data() const { return data_; }
    T const* end() const { return data_ + count_; }
    std::size_t size() const { return count_; }

private:
    char* base_ = nullptr;
    std::size_t mapped_ = 0;
    T* data_ = nullptr;
    std::size_t count_ = 0;
};

#endif
