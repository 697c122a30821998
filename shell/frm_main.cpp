#include "shell/frm_main.h"

#include "clubs/frm_club_params.h"
#include "results/result_table.h"
#include "shell/build_values.h"

namespace parabolt {

frmMain::frmMain(const FormServices& services)
    : plot(form, form, form.Frame7, services.messages),
      pause(form, form.Timer1, form.Picture1, services.events),
      validators(form, plot, services.messages),
      shotEntry(form, form.Picture1, validators),
      sessions(form, plot, services.ccrpFileDialogs1, services.preferences, services.messages,
               services.applicationFolder, services.sessions),
      clubChoice_(form, form.clubs, validators),
      modes_(form, clubChoice_),
      defaults_(form, services.messages),
      resultExport_(form.txtResult, services.ccrpFileDialogs1, services.preferences,
                    services.messages, services.applicationFolder),
      dataSetExport_(form.Runs, services.ccrpFileDialogs1, services.preferences, services.messages,
                     services.applicationFolder),
      parameters_(form, services.ccrpFileDialogs1, services.preferences, services.messages,
                  services.applicationFolder),
      run_(form, form.clubs, form.txtResult, plot, services.messages),
      batch_(form, run_, pause),
      driver_(form, form.txtResult, plot, run_, batch_, services.messages,
              [this] { resultExport_.mnuSResult_Click(); }),
      studies_(form, form.Timer1, run_, driver_, pause, frmProgress) {
    wireMenus(services.desktop);
    form.mnuReopenClubs.Click.connect([this, services] {
        reopenClubs({services.messages, services.ccrpFileDialogs1, services.preferences,
                     services.desktop, services.applicationFolder,
                     [this] { showClubsInCaption(form); }});
    });
}

void frmMain::wireMenus(Desktop& desktop) {
    // The field being edited is judged before a menu acts.
    const auto settle = [this] { form.focus.give(form.Picture1); };
    form.mnuFile.Click.connect(settle);
    form.mnuStudies.Click.connect(settle);
    form.mnuOpen.Click.connect([this] { parameters_.mnuOpen_Click(); });
    form.mnuSave.Click.connect([this] { parameters_.mnuSave_Click(); });
    form.mnuSResult.Click.connect([this] { resultExport_.mnuSResult_Click(); });
    form.mnuPrint.Click.connect([this] {
        plot.PreparePrintPlots();
        showPrintView();
    });
    form.mnuExit.Click.connect([this] { endProgram(); });
    form.mnuDefault.Click.connect([this, settle] {
        settle();
        showClubEditor();
    });
    form.mnuStyLaunch.Click.connect([this] { studies_.mnuStyLaunch_Click(); });
    form.mnuStySpin.Click.connect([this] { studies_.mnuStySpin_Click(); });
    form.mnuStyMap.Click.connect([this] { showCarryMap(); });
    form.mnuDataSets.Click.connect([this] { showDataSets(); });
    form.mnuMeasured.Click.connect([this] { showMeasured(); });
    form.mnuBag.Click.connect([this] { showBag(); });
    form.mnuExportTable.Click.connect([this] { dataSetExport_.mnuExportTable_Click(); });
    form.mnuExportPaths.Click.connect([this] { dataSetExport_.mnuExportPaths_Click(); });
    form.mnuExportPlot.Click.connect([this] { dataSetExport_.exportPlot(plotFile); });
    form.mnuCopyTable.Click.connect([this] { copyTable(); });
    form.mnuCopyPlot.Click.connect([this] { copyPlot(); });
    form.mnuReset.Click.connect([this] { defaults_.mnuReset_Click(); });
    form.mnuHelp.Click.connect([settle, &desktop] {
        settle();
        desktop.openHelp();
    });
    form.mnuSkype.Click.connect(
        [&desktop] { desktop.openAddress("callto:" + std::string(kCallContact)); });
    form.mnuAbout.Click.connect([this] { showAbout(); });
}

/// As if the editor had opened the file, applied it and gone.
void frmMain::reopenClubs(const ClubServices& services) {
    frmClubParams editor(form.clubs, services);
    if (!editor.files.readLastFile() || !editor.editor.ValidateClubGrids())
        return;
    form.Wiping();
    editor.editor.ApplyClubGrids();
}

void frmMain::Form_Load() {
    modes_.DisableClubParameters();
    form.blFormLoaded = true;
    form.clubs = InitClubTables();
    showClubsInCaption(form);
    ResetAll();
    form.txtMode.setText("2");
    SelectAllTextBoxes(form.controls);
    WriteResultHeader(form.txtResult);
    form.cmbClubNo.select(0);
    takeClubNumber(form);
    sessions.begin();
}

void frmMain::ResetAll() {
    form.txtRun.setText("0");
    form.sRange = 300;
    run_.ClearRuns();
    defaults_.SetSwingDefaults();
    defaults_.SetEnvironmentDefaults();
    defaults_.SetClubDefaults();
}

} // namespace parabolt
