// refused: initializer for conditional binding must have Optional type
import QV_Commons_iOS
func f() { if let u = QV_Links.privacyPolicy() { _ = u } }
