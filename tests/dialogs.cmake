# The tests of the step bar, of the dialogs and of the small classes beside them.

tessera_test(tst_CStepBar LIBRARIES Qt${TESSERA_QT}::${TESSERA_SVG_WIDGETS} SOURCES TestSupport.h data/icons.qrc)
tessera_test(tst_FontSettingDlg LIBRARIES ${TESSERA_TEST_HOST} SOURCES ModalDriver.h TestSupport.h data/icons.qrc)
set_target_properties(tst_CStepBar tst_FontSettingDlg PROPERTIES AUTORCC ON)
tessera_test(tst_CProgressDlg SOURCES ModalDriver.h)
tessera_test(tst_CMessageDlg SOURCES ModalDriver.h)
tessera_test(tst_CustomTextBrowser)
tessera_test(tst_CustomInputDlg SOURCES ModalDriver.h)
tessera_test(tst_CScrollWdg)
tessera_test(tst_CAutoCursor)
