#!/usr/bin/python3
"""The example app for iOS calls every service, and its parts go together."""

import json
import os
import plistlib
import re
import unittest

import python_test
import xib_document

HOST = os.path.join(os.path.dirname(__file__), '../../examples/ios_host')

# By the call in Objective-C, and in Swift.
SERVICES = (
    ('[QV_AgeGateHelper startAgeGateProcessWithViewController:',
     'QV_AgeGateHelper.startAgeGateProcess('),
    ('[QV_AgeGateColorTheme defaultTheme]', '.defaultTheme()'),
    ('initWithBackgroundColor:', None),
    ('[QV_SupportHelper.shared contactSupportWithViewController:',
     'QV_SupportHelper.shared.contactSupport('),
    ('- (void)onCompletion {', 'func onCompletion() {'),
    ('[QV_RateHelper openWriteReviewOnAppStoreWithAppId:',
     'QV_RateHelper.openWriteReviewOnAppStore(appId:'),
    ('QV_Links.privacyPolicy', 'QV_Links.privacyPolicy()'),
    ('QV_Links.termsOfService', 'QV_Links.termsOfService()'),
    ('[QV_AppInfoHelper appName]', 'QV_AppInfoHelper.appName()'),
    ('[QV_AppInfoHelper appVersion]', 'QV_AppInfoHelper.appVersion()'),
    ('[QV_AppInfoHelper appId]', 'QV_AppInfoHelper.appId()'),
    ('[QV_BundleFileHelper getQVCommonsResourceBundle]',
     'QV_BundleFileHelper.getQVCommonsResourceBundle()'),
    ('[QV_BundleFileHelper loadJsonFromBundleWithFilename:',
     'QV_BundleFileHelper.loadJsonFromBundle(filename:'),
    ('[QV_ViewControllerHelper topViewControllerWithController:',
     'QV_ViewControllerHelper.topViewController(controller:'),
    ('.qv_searchTextField_all_iOS_versions', '.qv_searchTextField_all_iOS_versions'),
    (None, 'QV_TimeHelper.currentTimeInMilliseconds()'),
    (None, 'QV_TimeHelper.currentTimeInSeconds()'),
    (None, 'QV_TimeHelper.secondsToMinutes(62, roundUp:'),
    (None, 'QV_TimeHelper.secondsToDays(seconds:'),
    (None, 'QV_TimeHelper.secondsToHms('),
    (None, 'QV_TimeHelper.secondsToHmsDigits('),
    (None, 'QV_TimeHelper.hmsToSeconds('),
)


def read(file):
    with open(os.path.join(HOST, file), encoding='utf-8') as text:
        return text.read()


class IosHost(unittest.TestCase):
    def test_every_service_is_called(self):
        objective_c, swift = read('ServicesViewController.m'), read('TimesViewController.swift')
        for selector, call in SERVICES:
            if selector is not None:
                self.assertIn(selector, objective_c)
            if call is not None:
                self.assertIn(call, swift)

    def test_what_is_named_by_text_is_there(self):
        with open(os.path.join(HOST, 'Info.plist'), 'rb') as file:
            info = plistlib.load(file)
        scenes = info['UIApplicationSceneManifest']['UISceneConfigurations']
        delegate = scenes['UIWindowSceneSessionRoleApplication'][0]['UISceneDelegateClassName']
        self.assertIn(f'@implementation {delegate}\n', read(delegate + '.m'))
        self.assertIn('NSClassFromString(@"TimesViewController")', read('RootViewController.m'))
        self.assertIn('@objc(TimesViewController)', read('TimesViewController.swift'))
        # The one launch screen that systems 11 to 13 know, too.
        self.assertIn('launchScreen="YES"', read(info['UILaunchStoryboardName'] + '.storyboard'))
        self.assertEqual(json.loads(read('greeting.json')), {'greeting': 'Hello'})

    def test_the_project_builds_every_source(self):
        listed = read('CMakeLists.txt')
        for file in os.listdir(HOST):
            if file.endswith(('.m', '.swift', '.json', '.storyboard')):
                self.assertIn(f'  {file}', listed)

    def test_the_description_of_a_project_leaves_out_what_is_no_part_of_the_app(self):
        """It takes the folder: what CMake does not list is excluded by name."""
        excluded = re.search(r'excludes: \[(.*)\]', read('project.yml'))[1].split(', ')
        listed = read('CMakeLists.txt')
        self.assertEqual(sorted(excluded), sorted(
            name for name in os.listdir(HOST)
            if f'  {name}' not in listed and not name.endswith(('.h', '.plist'))))

    def test_the_ui_test_asks_for_what_is_there(self):
        test = read('UITests/AgeGateUITests.swift')
        there = {element.get('identifier') for screen in xib_document.SCREENS
                 for element in xib_document.Document.load(screen).root.iter('accessibility')}
        asked = set(re.findall('\\["(QV_[A-Za-z_]+)"\\]', test))
        self.assertGreater(len(asked), 4)
        self.assertLessEqual(asked, there)
        keys = read('../../qv_commons/age_gate/age_gate_decision.h')
        for key in re.findall('"-(QV_[A-Za-z_]+)"', test):
            self.assertIn(f'"{key}"', keys)
        self.assertIn('"Let through"', test)
        self.assertIn('@"Let through"', read('ServicesViewController.m'))


if __name__ == '__main__':
    python_test.main()
