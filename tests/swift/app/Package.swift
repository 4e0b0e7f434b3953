// swift-tools-version:5.9
import PackageDescription

let package = Package(
    name: "app",
    platforms: [.iOS("12.0")],
    dependencies: [.package(path: "../QV_Commons")],
    targets: [
        .target(name: "App", dependencies: [.product(name: "QV_Commons_iOS", package: "QV_Commons")]),
    ])
