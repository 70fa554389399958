# SPDX-FileCopyrightText: 2026 The WZT Companion authors
# SPDX-License-Identifier: MIT

# In development builds the headers that most sources include are compiled once for all targets. A release
# reads them as they are, so that a source that forgets an include is found. A header that few include makes it
# worse: each source instantiates anew what the inline functions of all these headers use.
#
# The compiler takes a precompiled header only where every macro is defined that was defined when it was
# made: so it is made with Qt Core's alone, whatever it includes of the other modules. -pthread defines one as
# well, and comes with some libraries and not with others.
if(WZT_BUILD_TESTS)
    file(CONFIGURE OUTPUT ${PROJECT_BINARY_DIR}/precompiled.cpp CONTENT "")
    add_library(wzt_precompiled OBJECT ${PROJECT_BINARY_DIR}/precompiled.cpp)
    wzt_warnings(wzt_precompiled)
    target_compile_options(wzt_precompiled PRIVATE -pthread)
    target_link_libraries(wzt_precompiled PRIVATE Qt6::Core)
    target_include_directories(wzt_precompiled SYSTEM PRIVATE
        $<TARGET_PROPERTY:Qt6::Quick,INTERFACE_INCLUDE_DIRECTORIES>)
    target_precompile_headers(wzt_precompiled PRIVATE
        <QByteArray> <QDateTime> <QFile> <QJsonObject> <QList> <QObject> <QPointer> <QString> <QStringList>
        <QTimer> <QUrl> <QVariant> <QQuickItem> <QQmlEngine> <QtQml/qqmlprivate.h>
        <algorithm> <array> <chrono> <functional> <memory> <optional> <span> <vector>)
endif()

# Not for modules, whose code is made to be loaded anywhere: that setting has to be the same as well.
function(wzt_precompiled_headers target)
    get_target_property(type ${target} TYPE)
    if(TARGET wzt_precompiled AND NOT type STREQUAL MODULE_LIBRARY)
        target_compile_options(${target} PRIVATE -pthread)
        target_precompile_headers(${target} REUSE_FROM wzt_precompiled)
    endif()
endfunction()
