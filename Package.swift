// swift-tools-version:5.9
import PackageDescription

// The host name of the maker's web site, on which the legal documents are: a fork sets its own here.
let makerHost = "www.example.com"

// The languages of the screens, beside the base, which is English.
let languages = [
    "ar", "de", "es", "fr", "he", "hi", "it", "ja", "ko", "nl", "pl", "pt", "ru", "tr", "uk",
    "zh-Hans", "zh-Hant",
]

// Below a target's path, the package manager takes each <language>.lproj for a resource of that target.
let localized = ["qv_commons/resources", "swift/resources", "swift/core/include/qv_commons/resources"]

var targets: [Target] = [
    .target(
        name: "QVCommonsCore",
        path: ".",
        exclude: localized,
        sources: [
            "qv_commons/age_gate", "qv_commons/app_info", "qv_commons/support", "qv_commons/time",
            "qv_commons/view_utils", "qv_commons/platform/fatal_error.cpp",
            "qv_commons/platform/platform.cpp", "qv_commons/platform/presentation.cpp",
        ],
        publicHeadersPath: "swift/core/include",
        cxxSettings: [.define("QV_COMMONS_MAKER_HOST", to: "\"\(makerHost)\"")],
        linkerSettings: [.linkedLibrary("m", .when(platforms: [.linux]))]),
    .target(
        name: "QVCommonsMemory",
        dependencies: ["QVCommonsCore"],
        path: ".",
        exclude: localized + ["qv_commons/platform/memory/CMakeLists.txt"],
        sources: ["qv_commons/platform/memory"],
        publicHeadersPath: "swift/memory/include"),
    .testTarget(
        name: "QVCommonsTests",
        dependencies: ["QVCommonsCore", "QVCommonsMemory"],
        path: "swift/tests",
        swiftSettings: [.interoperabilityMode(.Cxx)]),
]
var products: [Product] = [
    .library(name: "QVCommonsCore", targets: ["QVCommonsCore"]),
    .library(name: "QVCommonsMemory", targets: ["QVCommonsMemory"]),
]

#if os(macOS)
targets += [
    // Its resources become <package>_<target>.bundle: QV_Commons_iOS.bundle.
    .target(
        name: "iOS",
        path: "swift/resources",
        resources: (["Base"] + languages).map { .process("\($0).lproj") }
            + [.copy("PrivacyInfo.xcprivacy")]),
    .target(
        name: "QV_Commons_iOS",
        dependencies: ["QVCommonsCore", "iOS"],
        path: "qv_commons/platform/uikit",
        exclude: ["CMakeLists.txt"],
        publicHeadersPath: "include",
        linkerSettings: [.linkedFramework("UIKit"), .linkedFramework("MessageUI")]),
]
products.append(.library(name: "QV_Commons_iOS", targets: ["QV_Commons_iOS"]))
#endif

let package = Package(
    name: "QV_Commons",
    defaultLocalization: "en",
    platforms: [.iOS("11.0")],
    products: products,
    targets: targets,
    cxxLanguageStandard: .cxx20)
