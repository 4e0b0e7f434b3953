// refused: 'init()' is unavailable
import QV_Commons_iOS
@MainActor func f() { _ = QV_AgeGateColorTheme() }
