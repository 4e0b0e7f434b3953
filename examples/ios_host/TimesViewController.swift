import QV_Commons_iOS
import UIKit

/// The time operations, and what else a Swift host calls: the names with their argument labels.
@objc(TimesViewController)
final class TimesViewController: UIViewController, QV_SupportHelperDelegate {
    private let text = UITextView()

    override func viewDidLoad() {
        super.viewDidLoad()
        text.frame = view.bounds
        text.autoresizingMask = [.flexibleWidth, .flexibleHeight]
        text.isEditable = false
        text.font = .preferredFont(forTextStyle: .body)
        text.adjustsFontForContentSizeCategory = true
        view.addSubview(text)
    }

    override func viewWillAppear(_ animated: Bool) {
        super.viewWillAppear(animated)
        let now = QV_TimeHelper.currentTimeInSeconds()
        text.text = """
            Milliseconds: \(QV_TimeHelper.currentTimeInMilliseconds())
            Seconds: \(now)
            Days since 1970: \(QV_TimeHelper.secondsToDays(seconds: now))
            62 seconds in minutes: \(QV_TimeHelper.secondsToMinutes(62, roundUp: true))
            3725 seconds: \(QV_TimeHelper.secondsToHms(3725))
            The same in digits: \(QV_TimeHelper.secondsToHmsDigits(3725))
            1:02:05 in seconds: \(QV_TimeHelper.hmsToSeconds("1:02:05"))
            \(QV_AppInfoHelper.appName()) \(QV_AppInfoHelper.appVersion()), \(QV_AppInfoHelper.appId())
            \(QV_BundleFileHelper.loadJsonFromBundle(filename: "greeting") ?? "No greeting")
            """
    }

    /// The calls of the other page, as they look in Swift.
    func callAll() {
        QV_AgeGateHelper.startAgeGateProcess(
            viewController: self,
            minimumAgeRequired: 16,
            completion: { [weak self] in self?.title = "Let through" },
            contactUsHandler: { [weak self] screen in self?.contactSupport(from: screen) },
            colorTheme: .defaultTheme(),
            privacyLink: QV_Links.privacyPolicy().absoluteString,
            termsOfServiceLink: QV_Links.termsOfService().absoluteString)
        QV_RateHelper.openWriteReviewOnAppStore(appId: "id123456789")
        QV_ViewControllerHelper.topViewController(controller: tabBarController)?.title = "Top"
        UISearchBar().qv_searchTextField_all_iOS_versions?.placeholder = "Search"
        print(QV_BundleFileHelper.getQVCommonsResourceBundle()?.bundlePath ?? "no bundle")
    }

    func contactSupport(from screen: UIViewController) {
        QV_SupportHelper.shared.contactSupport(
            viewController: screen,
            email: "support@example.com",
            subject: "Help with the example",
            purchases: [],
            openingMessage: "Good day,",
            additionalMetadata: nil,
            delegate: self)
    }

    func onCompletion() {
        title = "Thank you for writing"
    }
}
