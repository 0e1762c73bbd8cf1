#include <fl/i18n.hpp>

#include <iostream>
#include <string>

int main() {
    fl::i18n::initialize();
    fl::i18n::OvLocale const& locale = fl::i18n::OvLocale::global();
    std::string const messages = locale.getLocaleName(fl::i18n::OvLocale::messages);
    std::string const encoding = locale.getEncoding();
    std::cout << "libovi18n " << libovi18n_version << ": messages " << messages << ", encoding "
              << encoding << ", status " << fl::i18n::OvLcUtil::getLcStatus() << "\n";
    return messages.empty() || encoding.empty() ? 1 : 0;
}
