// swift-tools-version:5.9
import PackageDescription

let package = Package(
    name: "cxx_host",
    dependencies: [.package(path: "../QV_Commons")],
    targets: [
        .executableTarget(
            name: "cxx_host",
            dependencies: [.product(name: "QVCommonsMemory", package: "QV_Commons")]),
    ],
    cxxLanguageStandard: .cxx20)
