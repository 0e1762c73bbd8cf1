# OVI18N_SANITIZE takes the list given to -fsanitize=, e.g. "address,undefined" or "thread".
if(OVI18N_SANITIZE)
    if(OVI18N_SANITIZE MATCHES "thread" AND OVI18N_SANITIZE MATCHES "address")
        message(FATAL_ERROR "thread and address sanitizers cannot be combined")
    endif()
    add_compile_options(-fsanitize=${OVI18N_SANITIZE} -fno-omit-frame-pointer -fno-sanitize-recover=all)
    add_link_options(-fsanitize=${OVI18N_SANITIZE})
endif()

if(OVI18N_FUZZ)
    add_compile_options(-fsanitize=fuzzer-no-link,address,undefined -fno-omit-frame-pointer)
    add_link_options(-fsanitize=address,undefined)
endif()
