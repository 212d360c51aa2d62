<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="en">
<context>
    <name></name>
    <message id="accessibility_turn_off_button">
        <source></source>
        <translation>Turn off</translation>
    </message>
    <message id="accessibility_turn_on_button">
        <source></source>
        <translation>Turn on</translation>
    </message>
    <message id="accessibility_turned_on">
        <source></source>
        <translation>Accessibility is on. A browser that was open may have to be closed and opened once.</translation>
    </message>
    <message id="action_new_project">
        <source></source>
        <translation>New project</translation>
    </message>
    <message id="action_new_task">
        <source></source>
        <translation>New task</translation>
    </message>
    <message id="action_pause">
        <source></source>
        <translation>Pause the session</translation>
    </message>
    <message id="action_resume">
        <source></source>
        <translation>Resume the session</translation>
    </message>
    <message id="action_send_feedback">
        <source></source>
        <translation>Suggest an improvement…</translation>
    </message>
    <message id="action_show_panel">
        <source></source>
        <translation>Open the timer panel</translation>
    </message>
    <message id="action_show_welcome">
        <source></source>
        <translation>Show the welcome again</translation>
    </message>
    <message id="action_start_break">
        <source></source>
        <translation>Start a break</translation>
    </message>
    <message id="action_start_rearming">
        <source></source>
        <translation>Start rearming</translation>
    </message>
    <message id="action_start_work">
        <source></source>
        <translation>Start a work phase</translation>
    </message>
    <message id="action_stop">
        <source></source>
        <translation>Stop the session</translation>
    </message>
    <message id="action_toggle_floating_timer">
        <source></source>
        <translation>Floating timer on or off</translation>
    </message>
    <message id="active_task_next">
        <source></source>
        <translation>First up: %1</translation>
    </message>
    <message id="active_task_none_idle">
        <source></source>
        <translation>No task chosen. A session works without one, too.</translation>
    </message>
    <message id="activity_distracted">
        <source></source>
        <translation>Distracted</translation>
    </message>
    <message id="activity_idle_subtitle">
        <source></source>
        <translation>Nothing is counted until one comes to the front.</translation>
    </message>
    <message id="activity_idle_title">
        <source></source>
        <translation>No application in front</translation>
    </message>
    <message id="activity_label">
        <source></source>
        <translation>Current activity</translation>
    </message>
    <message id="activity_legitimate">
        <source></source>
        <translation>Legitimate</translation>
    </message>
    <message id="activity_paused_subtitle">
        <source></source>
        <translation>Nothing is measured or blocked until you resume.</translation>
    </message>
    <message id="activity_paused_title">
        <source></source>
        <translation>Paused</translation>
    </message>
    <message id="activity_unmeasured_subtitle">
        <source></source>
        <translation>After a pause the measured times stay as they are until the next session. Blocking goes on.</translation>
    </message>
    <message id="activity_unmeasured_title">
        <source></source>
        <translation>Activity is no longer measured</translation>
    </message>
    <message id="add_button">
        <source></source>
        <translation>Add task</translation>
    </message>
    <message id="add_task">
        <source></source>
        <translation>New task</translation>
    </message>
    <message id="add_to_my_agenda">
        <source></source>
        <translation>Add to my agenda</translation>
    </message>
    <message id="agenda_date_format">
        <source></source>
        <translation>%1, %3 %2</translation>
    </message>
    <message id="agenda_date_year_format">
        <source></source>
        <translation>%1, %2</translation>
    </message>
    <message id="agenda_keys_hint">
        <source></source>
        <translation>Enter: open · Space: done · Del: take off the agenda</translation>
    </message>
    <message id="agenda_row_name">
        <source></source>
        <translation>%1. %2</translation>
    </message>
    <message id="alert_non_legitimate_site">
        <source></source>
        <translation>This site is not part of your session</translation>
    </message>
    <message id="alert_stay_focused">
        <source></source>
        <translation>Stay focused</translation>
    </message>
    <message id="ambience_air_tones">
        <source></source>
        <translation>Air tones</translation>
    </message>
    <message id="ambience_brown_noise">
        <source></source>
        <translation>Brown noise</translation>
    </message>
    <message id="ambience_button">
        <source></source>
        <translation>Ambient sound: %1 (Ctrl+M)</translation>
    </message>
    <message id="ambience_category_focus">
        <source></source>
        <translation>Focus</translation>
    </message>
    <message id="ambience_category_label">
        <source></source>
        <translation>Kind of sound</translation>
    </message>
    <message id="ambience_category_nature">
        <source></source>
        <translation>Nature</translation>
    </message>
    <message id="ambience_category_noise">
        <source></source>
        <translation>Noise</translation>
    </message>
    <message id="ambience_fan">
        <source></source>
        <translation>Fan</translation>
    </message>
    <message id="ambience_fire">
        <source></source>
        <translation>Fire</translation>
    </message>
    <message id="ambience_grey_noise">
        <source></source>
        <translation>Grey noise</translation>
    </message>
    <message id="ambience_low_drone">
        <source></source>
        <translation>Low drone</translation>
    </message>
    <message id="ambience_none">
        <source></source>
        <translation>No sound</translation>
    </message>
    <message id="ambience_pink_noise">
        <source></source>
        <translation>Pink noise</translation>
    </message>
    <message id="ambience_play_button">
        <source></source>
        <translation>Listen</translation>
    </message>
    <message id="ambience_rain">
        <source></source>
        <translation>Rain</translation>
    </message>
    <message id="ambience_singing_bowls">
        <source></source>
        <translation>Singing bowls</translation>
    </message>
    <message id="ambience_soft_pads">
        <source></source>
        <translation>Soft pads</translation>
    </message>
    <message id="ambience_stop_button">
        <source></source>
        <translation>Stop listening</translation>
    </message>
    <message id="ambience_stream">
        <source></source>
        <translation>Stream</translation>
    </message>
    <message id="ambience_subtitle">
        <source></source>
        <translation>Fades in with a work phase; breaks are silent</translation>
    </message>
    <message id="ambience_title">
        <source></source>
        <translation>Ambient sound</translation>
    </message>
    <message id="ambience_volume">
        <source></source>
        <translation>Volume of the ambient sound</translation>
    </message>
    <message id="ambience_waves">
        <source></source>
        <translation>Waves</translation>
    </message>
    <message id="ambience_white_noise">
        <source></source>
        <translation>White noise</translation>
    </message>
    <message id="ambience_wind">
        <source></source>
        <translation>Wind</translation>
    </message>
    <message id="another_work_button">
        <source></source>
        <translation>Another work phase</translation>
    </message>
    <message id="application_running">
        <source></source>
        <translation>running</translation>
    </message>
    <message id="application_running_name">
        <source></source>
        <translation>%1, running</translation>
    </message>
    <message id="application_search_placeholder">
        <source></source>
        <translation>Search by name or identifier</translation>
    </message>
    <message id="applications_count" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n application</numerusform>
            <numerusform>%n applications</numerusform>
        </translation>
    </message>
    <message id="applications_empty_subtitle">
        <source></source>
        <translation>No installed application was found.</translation>
    </message>
    <message id="applications_empty_title">
        <source></source>
        <translation>No application to show</translation>
    </message>
    <message id="applications_no_match_subtitle">
        <source></source>
        <translation>Nothing matches this search. Escape clears it.</translation>
    </message>
    <message id="applications_tab">
        <source></source>
        <translation>Applications</translation>
    </message>
    <message id="apps_used_title">
        <source></source>
        <translation>Applications used</translation>
    </message>
    <message id="attach_not_opened">
        <source></source>
        <translation>The desktop has no application that opens this file.</translation>
    </message>
    <message id="attach_refused_again">
        <source></source>
        <translation>A file that is attached already was left out.</translation>
    </message>
    <message id="attach_refused_missing">
        <source></source>
        <translation>A file that is not there cannot be attached.</translation>
    </message>
    <message id="attach_refused_not_local">
        <source></source>
        <translation>Only files on this computer can be attached.</translation>
    </message>
    <message id="autostart_hint">
        <source></source>
        <translation>Without a window, ready for the first session.</translation>
    </message>
    <message id="autostart_label">
        <source></source>
        <translation>Start when I log in</translation>
    </message>
    <message id="autostart_no_portal">
        <source></source>
        <translation>This desktop does not let sandboxed programs start at login.</translation>
    </message>
    <message id="autostart_no_portal_remedy">
        <source></source>
        <translation>Install xdg-desktop-portal and the part of it that belongs to your desktop.</translation>
    </message>
    <message id="autostart_reason">
        <source></source>
        <translation>Norvin Focus wants to be ready when you log in.</translation>
    </message>
    <message id="autostart_unwritable">
        <source></source>
        <translation>The entry for the start at login cannot be written.</translation>
    </message>
    <message id="autostart_unwritable_remedy">
        <source></source>
        <translation>Make sure that you may write to the folder “autostart” of your settings.</translation>
    </message>
    <message id="backup_contents_empty">
        <source></source>
        <translation>nothing in it</translation>
    </message>
    <message id="backup_date_pattern">
        <source></source>
        <translation>d MMMM yyyy</translation>
    </message>
    <message id="backup_kind_before_restore">
        <source></source>
        <translation>before a restore</translation>
    </message>
    <message id="backup_kind_daily">
        <source></source>
        <translation>daily</translation>
    </message>
    <message id="backup_kind_manual">
        <source></source>
        <translation>made by you</translation>
    </message>
    <message id="backup_now_button">
        <source></source>
        <translation>Back up now</translation>
    </message>
    <message id="backup_unreadable">
        <source></source>
        <translation>This file is damaged and cannot be restored.</translation>
    </message>
    <message id="backup_when">
        <source></source>
        <translation>%1, %2</translation>
    </message>
    <message id="backups_text">
        <source></source>
        <translation>While the program runs, it makes a copy once a day and keeps it for 14 days. Copies that you make yourself stay until you delete them.</translation>
    </message>
    <message id="backups_title">
        <source></source>
        <translation>Backups</translation>
    </message>
    <message id="balance_label">
        <source></source>
        <translation>Measured time</translation>
    </message>
    <message id="block_lists_subtitle">
        <source></source>
        <translation>Blocked applications are hidden during a work phase. Time in whitelisted ones counts as legitimate; everything else counts as distracted.</translation>
    </message>
    <message id="block_lists_title">
        <source></source>
        <translation>Block lists</translation>
    </message>
    <message id="blocked_count" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n blocked</numerusform>
            <numerusform>%n blocked</numerusform>
        </translation>
    </message>
    <message id="board_back_button">
        <source></source>
        <translation>All projects</translation>
    </message>
    <message id="board_column_name">
        <source></source>
        <translation>%1, %2</translation>
    </message>
    <message id="board_new_task_name">
        <source></source>
        <translation>New task, %1</translation>
    </message>
    <message id="board_new_task_placeholder">
        <source></source>
        <translation>What is to be done?</translation>
    </message>
    <message id="board_tabs_name">
        <source></source>
        <translation>Phases</translation>
    </message>
    <message id="break_button">
        <source></source>
        <translation>Take a break</translation>
    </message>
    <message id="break_subtitle">
        <source></source>
        <translation>Nothing is measured or blocked during a break. Look up, move, drink something.</translation>
    </message>
    <message id="browser_blocked_note">
        <source></source>
        <translation>%1 is a blocked application: it is hidden, so its pages never count.</translation>
    </message>
    <message id="browser_not_whitelisted_note">
        <source></source>
        <translation>%1 is not on the whitelist of applications, so it is never looked into: all its time counts as distracted, whatever the page.</translation>
    </message>
    <message id="browser_restart_button">
        <source></source>
        <translation>Restart %1</translation>
    </message>
    <message id="browser_restart_cancel_button">
        <source></source>
        <translation>Cancel</translation>
    </message>
    <message id="browser_restart_message">
        <source></source>
        <translation>%1 is closed and opened again. Text that you have typed into pages and not sent may be lost, and downloads that have not ended stop. %1 brings its tabs back, or offers to; private windows do not come back.</translation>
    </message>
    <message id="browser_restart_not_closed">
        <source></source>
        <translation>%1 did not close. Nothing was forced: close it yourself, then open it again.</translation>
    </message>
    <message id="browser_restart_not_opened">
        <source></source>
        <translation>%1 was closed but could not be opened again. Please open it yourself.</translation>
    </message>
    <message id="browser_restart_title">
        <source></source>
        <translation>Restart %1?</translation>
    </message>
    <message id="browser_restart_under_way">
        <source></source>
        <translation>%1 is being closed and opened again.</translation>
    </message>
    <message id="browser_sites_name" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%1, %n site</numerusform>
            <numerusform>%1, %n sites</numerusform>
        </translation>
    </message>
    <message id="browser_whitelist_button">
        <source></source>
        <translation>Whitelist it</translation>
    </message>
    <message id="browsers_all_button">
        <source></source>
        <translation>Show all</translation>
    </message>
    <message id="browsers_fewer_button">
        <source></source>
        <translation>Show fewer</translation>
    </message>
    <message id="by_category">
        <source></source>
        <translation>By category</translation>
    </message>
    <message id="calendar_day_name" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%1, %n task</numerusform>
            <numerusform>%1, %n tasks</numerusform>
        </translation>
    </message>
    <message id="calendar_month_format">
        <source></source>
        <translation>%1 %2</translation>
    </message>
    <message id="calendar_next_month">
        <source></source>
        <translation>Next month</translation>
    </message>
    <message id="calendar_next_year">
        <source></source>
        <translation>Next year</translation>
    </message>
    <message id="calendar_open">
        <source></source>
        <translation>Calendar</translation>
    </message>
    <message id="calendar_previous_month">
        <source></source>
        <translation>Previous month</translation>
    </message>
    <message id="calendar_previous_year">
        <source></source>
        <translation>Previous year</translation>
    </message>
    <message id="cancel_button">
        <source></source>
        <translation>Cancel</translation>
    </message>
    <message id="card_delete_button">
        <source></source>
        <translation>Delete</translation>
    </message>
    <message id="card_due_name">
        <source></source>
        <translation>due %1</translation>
    </message>
    <message id="card_late_name">
        <source></source>
        <translation>%1, late</translation>
    </message>
    <message id="card_more_button">
        <source></source>
        <translation>What to do with “%1”</translation>
    </message>
    <message id="card_move_format">
        <source></source>
        <translation>Move to “%1”</translation>
    </message>
    <message id="card_open_button">
        <source></source>
        <translation>Open</translation>
    </message>
    <message id="card_plan_button">
        <source></source>
        <translation>Plan</translation>
    </message>
    <message id="card_planned_name">
        <source></source>
        <translation>planned for %1</translation>
    </message>
    <message id="card_priority_name">
        <source></source>
        <translation>priority: %1</translation>
    </message>
    <message id="category_communication">
        <source></source>
        <translation>Communication</translation>
    </message>
    <message id="category_design">
        <source></source>
        <translation>Design</translation>
    </message>
    <message id="category_development">
        <source></source>
        <translation>Development</translation>
    </message>
    <message id="category_entertainment">
        <source></source>
        <translation>Entertainment</translation>
    </message>
    <message id="category_navigation">
        <source></source>
        <translation>Browsing</translation>
    </message>
    <message id="category_other">
        <source></source>
        <translation>Other</translation>
    </message>
    <message id="category_productivity">
        <source></source>
        <translation>Productivity</translation>
    </message>
    <message id="category_social">
        <source></source>
        <translation>Social networks</translation>
    </message>
    <message id="category_system">
        <source></source>
        <translation>System</translation>
    </message>
    <message id="chart_category">
        <source></source>
        <translation>Category</translation>
    </message>
    <message id="chart_date">
        <source></source>
        <translation>Date</translation>
    </message>
    <message id="chart_duration">
        <source></source>
        <translation>Duration</translation>
    </message>
    <message id="chart_hour">
        <source></source>
        <translation>Hour</translation>
    </message>
    <message id="chart_minutes">
        <source></source>
        <translation>Focus time</translation>
    </message>
    <message id="chart_share">
        <source></source>
        <translation>%1%</translation>
    </message>
    <message id="chart_share_small">
        <source></source>
        <translation>&lt; %1%</translation>
    </message>
    <message id="chart_threshold">
        <source></source>
        <translation>Threshold</translation>
    </message>
    <message id="chart_time">
        <source></source>
        <translation>Time</translation>
    </message>
    <message id="chart_value_format">
        <source></source>
        <translation>%1: %2</translation>
    </message>
    <message id="check_for_updates">
        <source></source>
        <translation>Check for updates…</translation>
    </message>
    <message id="chip_ambiguous">
        <source></source>
        <translation>“%1” fits several names</translation>
    </message>
    <message id="chip_due">
        <source></source>
        <translation>Due: %1</translation>
    </message>
    <message id="chip_phase_without_project">
        <source></source>
        <translation>“%1”: phases need a project</translation>
    </message>
    <message id="chip_planned">
        <source></source>
        <translation>Planned: %1</translation>
    </message>
    <message id="chip_priority">
        <source></source>
        <translation>Priority: %1</translation>
    </message>
    <message id="chip_remove">
        <source></source>
        <translation>Make it part of the title: %1</translation>
    </message>
    <message id="chip_unknown_phase">
        <source></source>
        <translation>No phase “%1”</translation>
    </message>
    <message id="chip_unknown_project">
        <source></source>
        <translation>No project “%1”</translation>
    </message>
    <message id="choice_all_projects">
        <source></source>
        <translation>All projects</translation>
    </message>
    <message id="clean_state_title">
        <source></source>
        <translation>Nothing on record</translation>
    </message>
    <message id="coach_dismiss_button">
        <source></source>
        <translation>Hide the message</translation>
    </message>
    <message id="coach_distraction_1">
        <source></source>
        <translation>%1 can wait. One more small step first.</translation>
    </message>
    <message id="coach_distraction_2">
        <source></source>
        <translation>%1 out of habit? Take a breath, then carry on.</translation>
    </message>
    <message id="coach_distraction_3">
        <source></source>
        <translation>%1 will still be there later. Your task comes first.</translation>
    </message>
    <message id="coach_interrupt_abandoned">
        <source></source>
        <translation>Stopped for now, and that is fine. Start again any time.</translation>
    </message>
    <message id="coach_interrupt_inactivity">
        <source></source>
        <translation>You have been away for a while. Carry on when you like.</translation>
    </message>
    <message id="coach_interrupt_pause">
        <source></source>
        <translation>Paused. Catch your breath, then carry on.</translation>
    </message>
    <message id="color_amber">
        <source></source>
        <translation>Amber</translation>
    </message>
    <message id="color_blue">
        <source></source>
        <translation>Blue</translation>
    </message>
    <message id="color_cyan">
        <source></source>
        <translation>Cyan</translation>
    </message>
    <message id="color_deep_violet">
        <source></source>
        <translation>Deep violet</translation>
    </message>
    <message id="color_green">
        <source></source>
        <translation>Green</translation>
    </message>
    <message id="color_indigo">
        <source></source>
        <translation>Indigo</translation>
    </message>
    <message id="color_lavender">
        <source></source>
        <translation>Lavender</translation>
    </message>
    <message id="color_orange">
        <source></source>
        <translation>Orange</translation>
    </message>
    <message id="color_pink">
        <source></source>
        <translation>Pink</translation>
    </message>
    <message id="color_red">
        <source></source>
        <translation>Red</translation>
    </message>
    <message id="color_teal">
        <source></source>
        <translation>Teal</translation>
    </message>
    <message id="color_violet">
        <source></source>
        <translation>Violet</translation>
    </message>
    <message id="completed_break_title">
        <source></source>
        <translation>Break over</translation>
    </message>
    <message id="completed_minutes" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n minute</numerusform>
            <numerusform>%n minutes</numerusform>
        </translation>
    </message>
    <message id="completed_not_recorded">
        <source></source>
        <translation>Phases of less than ten seconds are not recorded.</translation>
    </message>
    <message id="completed_rearming_title">
        <source></source>
        <translation>Re-arming finished</translation>
    </message>
    <message id="completed_work_title">
        <source></source>
        <translation>Work phase finished</translation>
    </message>
    <message id="confirm_delete_phase_title">
        <source></source>
        <translation>Delete the phase “%1”?</translation>
    </message>
    <message id="confirm_delete_project_message">
        <source></source>
        <translation>You have ten seconds to take it back.</translation>
    </message>
    <message id="confirm_delete_project_title">
        <source></source>
        <translation>Delete “%1”?</translation>
    </message>
    <message id="confirm_delete_task_message">
        <source></source>
        <translation>The task is removed from its project, the agenda and the queue.</translation>
    </message>
    <message id="confirm_delete_task_title">
        <source></source>
        <translation>Delete this task?</translation>
    </message>
    <message id="confirm_unschedule_task_message">
        <source></source>
        <translation>A task of a project stays there, without its dates. A task without a project is deleted.</translation>
    </message>
    <message id="confirm_unschedule_task_title">
        <source></source>
        <translation>Take this task off the agenda?</translation>
    </message>
    <message id="count_files" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n attached file</numerusform>
            <numerusform>%n attached files</numerusform>
        </translation>
    </message>
    <message id="count_intervals" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n usage interval</numerusform>
            <numerusform>%n usage intervals</numerusform>
        </translation>
    </message>
    <message id="count_phases" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n phase</numerusform>
            <numerusform>%n phases</numerusform>
        </translation>
    </message>
    <message id="count_projects" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n project</numerusform>
            <numerusform>%n projects</numerusform>
        </translation>
    </message>
    <message id="count_sessions" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n recorded session</numerusform>
            <numerusform>%n recorded sessions</numerusform>
        </translation>
    </message>
    <message id="count_subtasks" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n subtask</numerusform>
            <numerusform>%n subtasks</numerusform>
        </translation>
    </message>
    <message id="count_tasks" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n task</numerusform>
            <numerusform>%n tasks</numerusform>
        </translation>
    </message>
    <message id="create_project_action">
        <source></source>
        <translation>Create project</translation>
    </message>
    <message id="create_project_title">
        <source></source>
        <translation>New project</translation>
    </message>
    <message id="daily_agenda">
        <source></source>
        <translation>Daily agenda</translation>
    </message>
    <message id="daily_distribution_subtitle">
        <source></source>
        <translation>How the day was spread</translation>
    </message>
    <message id="daily_objectives">
        <source></source>
        <translation>Objectives of the day</translation>
    </message>
    <message id="data_backing_up">
        <source></source>
        <translation>Making and checking the backup…</translation>
    </message>
    <message id="data_backup_failed">
        <source></source>
        <translation>The backup could not be made, and nothing has changed. %1</translation>
    </message>
    <message id="data_backup_made">
        <source></source>
        <translation>The backup was made and checked: %1</translation>
    </message>
    <message id="data_busy">
        <source></source>
        <translation>Something else is being copied. Try again in a moment.</translation>
    </message>
    <message id="data_daily_failed">
        <source></source>
        <translation>The backup of the day could not be made; it is tried again in an hour. %1</translation>
    </message>
    <message id="data_erase_failed">
        <source></source>
        <translation>Nothing was erased. %1</translation>
    </message>
    <message id="data_erased">
        <source></source>
        <translation>Everything was erased.</translation>
    </message>
    <message id="data_last_backup">
        <source></source>
        <translation>Last backup: %1</translation>
    </message>
    <message id="data_lost">
        <source></source>
        <translation>Your data could not be opened, so the program began with an empty store. (%1)</translation>
    </message>
    <message id="data_lost_with_backup">
        <source></source>
        <translation>Your data could not be opened, so the program began with an empty store. (%1) There is a backup of %2.</translation>
    </message>
    <message id="data_no_backup">
        <source></source>
        <translation>There is no backup yet.</translation>
    </message>
    <message id="data_no_records">
        <source></source>
        <translation>No session has been recorded yet.</translation>
    </message>
    <message id="data_not_replaced">
        <source></source>
        <translation>Your data stays as it was: the change could not be carried out. (%1)</translation>
    </message>
    <message id="data_open_folder_button">
        <source></source>
        <translation>Open the folder</translation>
    </message>
    <message id="data_place_text">
        <source></source>
        <translation>Everything is in one file on this computer, and nowhere else.</translation>
    </message>
    <message id="data_place_title">
        <source></source>
        <translation>Where your data is</translation>
    </message>
    <message id="data_records_since">
        <source></source>
        <translation>Recording since %1: %2, %3.</translation>
    </message>
    <message id="data_refused_session">
        <source></source>
        <translation>Not while a phase is under way: end it first.</translation>
    </message>
    <message id="data_restore_button">
        <source></source>
        <translation>Restore the backup</translation>
    </message>
    <message id="data_restore_failed">
        <source></source>
        <translation>The backup was not restored, and nothing has changed. %1</translation>
    </message>
    <message id="data_restored">
        <source></source>
        <translation>The backup is in place.</translation>
    </message>
    <message id="data_restored_damaged">
        <source></source>
        <translation>The backup is in place. What there was before could not be read; it lies in %1 until you delete it.</translation>
    </message>
    <message id="data_restored_kept">
        <source></source>
        <translation>The backup is in place. What there was before is among the backups.</translation>
    </message>
    <message id="data_restoring">
        <source></source>
        <translation>Checking the backup and preparing it…</translation>
    </message>
    <message id="date_at_time">
        <source></source>
        <translation>%1 at %2</translation>
    </message>
    <message id="date_day_month_short">
        <source></source>
        <translation>d MMM</translation>
    </message>
    <message id="date_first_of_month">
        <source></source>
        <translation>1</translation>
    </message>
    <message id="date_month_year">
        <source></source>
        <translation>MMMM yyyy</translation>
    </message>
    <message id="date_month_year_short">
        <source></source>
        <translation>MMM yy</translation>
    </message>
    <message id="date_strip_name">
        <source></source>
        <translation>Days</translation>
    </message>
    <message id="day_in_a_week">
        <source></source>
        <translation>In a week</translation>
    </message>
    <message id="default_phases_empty">
        <source></source>
        <translation>No phases: the board has no tabs.</translation>
    </message>
    <message id="default_phases_hint">
        <source></source>
        <translation>The tabs of the board. Alt+↑↓ moves one.</translation>
    </message>
    <message id="default_phases_label">
        <source></source>
        <translation>Phases</translation>
    </message>
    <message id="delete_button">
        <source></source>
        <translation>Delete</translation>
    </message>
    <message id="deletion_leaves_without_phase" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n task stays in the project, without a phase.</numerusform>
            <numerusform>%n tasks stay in the project, without a phase.</numerusform>
        </translation>
    </message>
    <message id="deletion_takes_along">
        <source></source>
        <translation>This goes with it: %1.</translation>
    </message>
    <message id="done_button">
        <source></source>
        <translation>Done</translation>
    </message>
    <message id="drop_task_here">
        <source></source>
        <translation>Drop a task here</translation>
    </message>
    <message id="duration_hours_minutes">
        <source></source>
        <translation>%1 h %2 min</translation>
    </message>
    <message id="duration_label">
        <source></source>
        <translation>Length of the work phase</translation>
    </message>
    <message id="duration_minutes">
        <source></source>
        <translation>%1 minutes</translation>
    </message>
    <message id="duration_minutes_seconds">
        <source></source>
        <translation>%1 min %2 s</translation>
    </message>
    <message id="duration_own">
        <source></source>
        <translation>Own</translation>
    </message>
    <message id="duration_own_name">
        <source></source>
        <translation>Minutes, 1 to 1440</translation>
    </message>
    <message id="duration_own_placeholder">
        <source></source>
        <translation>1–1440</translation>
    </message>
    <message id="duration_own_unit">
        <source></source>
        <translation>min</translation>
    </message>
    <message id="duration_seconds">
        <source></source>
        <translation>%1 s</translation>
    </message>
    <message id="edit_project">
        <source></source>
        <translation>Edit project</translation>
    </message>
    <message id="enumeration_and">
        <source></source>
        <translation>%1 and %2</translation>
    </message>
    <message id="erase_backup_offer">
        <source></source>
        <translation>You may want a backup before.</translation>
    </message>
    <message id="erase_backups_hint">
        <source></source>
        <translation>Without them there is no way back.</translation>
    </message>
    <message id="erase_backups_label">
        <source></source>
        <translation>Backups too</translation>
    </message>
    <message id="erase_button">
        <source></source>
        <translation>Erase and restart</translation>
    </message>
    <message id="erase_message">
        <source></source>
        <translation>All projects, tasks, links to files, sessions and records of use are deleted from this computer. Your settings, block lists and backups stay unless you say so here. Then the program starts again.</translation>
    </message>
    <message id="erase_open_button">
        <source></source>
        <translation>Erase everything…</translation>
    </message>
    <message id="erase_settings_hint">
        <source></source>
        <translation>Language, sounds, your name, and all four lists.</translation>
    </message>
    <message id="erase_settings_label">
        <source></source>
        <translation>Settings and block lists too</translation>
    </message>
    <message id="erase_text">
        <source></source>
        <translation>Takes all projects, tasks, sessions and records of use away for good.</translation>
    </message>
    <message id="erase_title">
        <source></source>
        <translation>Erase everything</translation>
    </message>
    <message id="erase_word">
        <source></source>
        <translation>erase</translation>
    </message>
    <message id="erase_word_label">
        <source></source>
        <translation>Type “%1” to confirm</translation>
    </message>
    <message id="explain_application_rule">
        <source></source>
        <translation>Each time it was in front while a session was running, one after the other.</translation>
    </message>
    <message id="explain_applications" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n application</numerusform>
            <numerusform>%n applications</numerusform>
        </translation>
    </message>
    <message id="explain_apps_rule">
        <source></source>
        <translation>The seconds of all applications added up; the page shows the whole minutes.</translation>
    </message>
    <message id="explain_back_button">
        <source></source>
        <translation>Back</translation>
    </message>
    <message id="explain_best_day_rule">
        <source></source>
        <translation>The day with the most minutes in completed sessions. A work phase in progress does not count here.</translation>
    </message>
    <message id="explain_bucket_rule">
        <source></source>
        <translation>The minutes of the completed sessions that began in this stretch of time, and of the work phase in progress where it is now.</translation>
    </message>
    <message id="explain_category_rule">
        <source></source>
        <translation>The seconds of the applications that were recorded under this category.</translation>
    </message>
    <message id="explain_day_rule">
        <source></source>
        <translation>The completed sessions that began on this day.</translation>
    </message>
    <message id="explain_focus_rule">
        <source></source>
        <translation>The minutes of the completed sessions added up. Of a work phase in progress, every minute begun counts.</translation>
    </message>
    <message id="explain_hour_rule">
        <source></source>
        <translation>The minutes of the completed sessions that began in this hour, in full even where they ran on into the next.</translation>
    </message>
    <message id="explain_intervals" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n interval</numerusform>
            <numerusform>%n intervals</numerusform>
        </translation>
    </message>
    <message id="explain_intervals_name">
        <source></source>
        <translation>Intervals</translation>
    </message>
    <message id="explain_live">
        <source></source>
        <translation>Work phase in progress</translation>
    </message>
    <message id="explain_live_detail">
        <source></source>
        <translation>Not recorded yet</translation>
    </message>
    <message id="explain_none">
        <source></source>
        <translation>There are no records behind this figure.</translation>
    </message>
    <message id="explain_read_problem">
        <source></source>
        <translation>The records could not be read: %1</translation>
    </message>
    <message id="explain_score_rule">
        <source></source>
        <translation>The mean of the scores below. Sessions without a score are left out; a work phase in progress counts with its score of now.</translation>
    </message>
    <message id="explain_score_sum" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%1 points, %n score</numerusform>
            <numerusform>%1 points, divided by %n scores</numerusform>
        </translation>
    </message>
    <message id="explain_sessions" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n session</numerusform>
            <numerusform>%n sessions</numerusform>
        </translation>
    </message>
    <message id="explain_sessions_rule">
        <source></source>
        <translation>Every work phase that ran to its end counts once.</translation>
    </message>
    <message id="explain_streak_rule">
        <source></source>
        <translation>Days in a row with at least one completed session, counted back from today, at most 365.</translation>
    </message>
    <message id="explain_sum_format">
        <source></source>
        <translation>%1 · %2</translation>
    </message>
    <message id="explain_waiting">
        <source></source>
        <translation>Reading the records…</translation>
    </message>
    <message id="explain_weekday_rule">
        <source></source>
        <translation>The minutes of the completed sessions that began on this day of the week.</translation>
    </message>
    <message id="explain_with_live_format">
        <source></source>
        <translation>%1 and the one in progress</translation>
    </message>
    <message id="extension_firefox_system">
        <source></source>
        <translation>One step is left: Firefox takes this extension from a system folder only. An administrator copies %1 to /usr/share/mozilla/extensions/{ec8030f7-c20a-464f-9b0e-13a3a9e97384}; then restart Firefox.</translation>
    </message>
    <message id="extension_foreign_file">
        <source></source>
        <translation>Another program has put its own file where ours belongs: %1. It was left as it is.</translation>
    </message>
    <message id="extension_host_missing">
        <source></source>
        <translation>The extension needs the program norvin-focus-browser-host, which is not installed.</translation>
    </message>
    <message id="extension_install_button">
        <source></source>
        <translation>Install the extension</translation>
    </message>
    <message id="extension_load_unpacked">
        <source></source>
        <translation>One step is left: open the extensions page of the browser, switch on its developer mode, and load the folder %1.</translation>
    </message>
    <message id="extension_not_removed">
        <source></source>
        <translation>The extension could not be removed: %1</translation>
    </message>
    <message id="extension_not_written">
        <source></source>
        <translation>The extension could not be written: %1</translation>
    </message>
    <message id="extension_remove_button">
        <source></source>
        <translation>Remove the extension</translation>
    </message>
    <message id="extension_removed">
        <source></source>
        <translation>The extension is removed.</translation>
    </message>
    <message id="extension_restart_browser">
        <source></source>
        <translation>The extension is in place. Close the browser and open it again.</translation>
    </message>
    <message id="feedback_broken">
        <source></source>
        <translation>The connection broke off before an answer came. You can send again: the same message is not counted twice.</translation>
    </message>
    <message id="feedback_close_button">
        <source></source>
        <translation>Close</translation>
    </message>
    <message id="feedback_email_label">
        <source></source>
        <translation>E-mail address for an answer (optional)</translation>
    </message>
    <message id="feedback_email_placeholder">
        <source></source>
        <translation>name@example.org</translation>
    </message>
    <message id="feedback_email_wrong">
        <source></source>
        <translation>This is not an e-mail address.</translation>
    </message>
    <message id="feedback_kept">
        <source></source>
        <translation>Your text is kept.</translation>
    </message>
    <message id="feedback_keys_hint">
        <source></source>
        <translation>Ctrl+Enter sends. What you write is kept until it has arrived.</translation>
    </message>
    <message id="feedback_kind_idea">
        <source></source>
        <translation>Idea</translation>
    </message>
    <message id="feedback_kind_label">
        <source></source>
        <translation>Kind of feedback</translation>
    </message>
    <message id="feedback_kind_praise">
        <source></source>
        <translation>Praise</translation>
    </message>
    <message id="feedback_kind_problem">
        <source></source>
        <translation>Problem</translation>
    </message>
    <message id="feedback_not_understood">
        <source></source>
        <translation>Something answered that does not take feedback, perhaps the sign-in page of a network.</translation>
    </message>
    <message id="feedback_offline">
        <source></source>
        <translation>The server could not be reached. Are you online?</translation>
    </message>
    <message id="feedback_preview_destination">
        <source></source>
        <translation>to %1</translation>
    </message>
    <message id="feedback_preview_label">
        <source></source>
        <translation>Exactly this is sent</translation>
    </message>
    <message id="feedback_redirected">
        <source></source>
        <translation>The server pointed elsewhere. Norvin Focus does not follow.</translation>
    </message>
    <message id="feedback_refused">
        <source></source>
        <translation>The server refused the message (status %1).</translation>
    </message>
    <message id="feedback_retry_button">
        <source></source>
        <translation>Try again</translation>
    </message>
    <message id="feedback_section_text">
        <source></source>
        <translation>Tell us what is missing or does not work. You see every word before it is sent.</translation>
    </message>
    <message id="feedback_send_button">
        <source></source>
        <translation>Send</translation>
    </message>
    <message id="feedback_sending">
        <source></source>
        <translation>Sending…</translation>
    </message>
    <message id="feedback_text_placeholder">
        <source></source>
        <translation>What would you like to tell us?</translation>
    </message>
    <message id="feedback_thanks">
        <source></source>
        <translation>Thank you! Your message has arrived.</translation>
    </message>
    <message id="feedback_timed_out">
        <source></source>
        <translation>The server did not answer in time.</translation>
    </message>
    <message id="feedback_title">
        <source></source>
        <translation>Suggest an improvement</translation>
    </message>
    <message id="feedback_untrusted">
        <source></source>
        <translation>The server could not prove who it is, so nothing was sent.</translation>
    </message>
    <message id="file_open_button">
        <source></source>
        <translation>Open</translation>
    </message>
    <message id="file_save_button">
        <source></source>
        <translation>Save</translation>
    </message>
    <message id="floating_timer">
        <source></source>
        <translation>Floating timer</translation>
    </message>
    <message id="floating_timer_close">
        <source></source>
        <translation>Switch the floating timer off</translation>
    </message>
    <message id="floating_timer_hint">
        <source></source>
        <translation>A small window keeps the time in view while the main window is not in front.</translation>
    </message>
    <message id="floating_timer_move">
        <source></source>
        <translation>Move the floating timer with the arrow keys</translation>
    </message>
    <message id="floating_timer_switch">
        <source></source>
        <translation>Floating timer</translation>
    </message>
    <message id="floating_timer_unavailable">
        <source></source>
        <translation>This desktop lets no window stay over all others.</translation>
    </message>
    <message id="free_session">
        <source></source>
        <translation>Free session</translation>
    </message>
    <message id="go_to_today_button">
        <source></source>
        <translation>Go to today</translation>
    </message>
    <message id="health_absent">
        <source></source>
        <translation>Not on this desktop</translation>
    </message>
    <message id="health_accessibility_missing">
        <source></source>
        <translation>This desktop has no accessibility service, so the pages of a browser cannot be told apart.</translation>
    </message>
    <message id="health_accessibility_missing_remedy">
        <source></source>
        <translation>Install the package at-spi2-core, or put the extension into your browser.</translation>
    </message>
    <message id="health_accessibility_off">
        <source></source>
        <translation>Norvin Focus cannot tell which site is in front in your browsers.</translation>
    </message>
    <message id="health_accessibility_off_remedy">
        <source></source>
        <translation>It can once accessibility is on for your desktop, which lets programs read one another’s windows. Norvin Focus reads the address of the page in front, nothing else, and only while a session runs. You can turn it off again in “Tracking health”.</translation>
    </message>
    <message id="health_all_good">
        <source></source>
        <translation>Everything works.</translation>
    </message>
    <message id="health_backup">
        <source></source>
        <translation>Backing up your data each day</translation>
    </message>
    <message id="health_backup_failed">
        <source></source>
        <translation>The last backup could not be made.</translation>
    </message>
    <message id="health_backup_failed_remedy">
        <source></source>
        <translation>Make room on the disk. The backup of the day is tried again each hour; the preferences make one at once.</translation>
    </message>
    <message id="health_browser">
        <source></source>
        <translation>Pages of %1</translation>
    </message>
    <message id="health_browser_alert">
        <source></source>
        <translation>Alert over blocked sites</translation>
    </message>
    <message id="health_browser_by_extension">
        <source></source>
        <translation>Pages of %1, by the extension</translation>
    </message>
    <message id="health_browser_not_answering">
        <source></source>
        <translation>%1 does not answer.</translation>
    </message>
    <message id="health_browser_not_answering_remedy">
        <source></source>
        <translation>It is asked again in a moment. If it stays so, close %1 and open it again.</translation>
    </message>
    <message id="health_browser_pages">
        <source></source>
        <translation>Telling the pages in browsers apart</translation>
    </message>
    <message id="health_browser_restart">
        <source></source>
        <translation>%1 was opened before accessibility was on.</translation>
    </message>
    <message id="health_browser_restart_remedy">
        <source></source>
        <translation>Close %1 once and open it again.</translation>
    </message>
    <message id="health_bus_name_taken">
        <source></source>
        <translation>Another program holds the name of Norvin Focus on the session bus.</translation>
    </message>
    <message id="health_bus_name_taken_remedy">
        <source></source>
        <translation>Quit the other copy of Norvin Focus, then start this one again.</translation>
    </message>
    <message id="health_check_again">
        <source></source>
        <translation>Check again</translation>
    </message>
    <message id="health_extension_not_connected">
        <source></source>
        <translation>The extension is installed, but %1 has not connected.</translation>
    </message>
    <message id="health_extension_not_connected_remedy">
        <source></source>
        <translation>Close %1 and open it again, and make sure that the extension is switched on there.</translation>
    </message>
    <message id="health_extension_socket">
        <source></source>
        <translation>The extension in your browsers cannot reach Norvin Focus.</translation>
    </message>
    <message id="health_extension_socket_remedy">
        <source></source>
        <translation>Norvin Focus needs a runtime directory of your own (XDG_RUNTIME_DIR), which a login usually makes.</translation>
    </message>
    <message id="health_extensions">
        <source></source>
        <translation>Connection to the browser extension</translation>
    </message>
    <message id="health_fails">
        <source></source>
        <translation>Does not work</translation>
    </message>
    <message id="health_frontmost_application">
        <source></source>
        <translation>Seeing which application is in front</translation>
    </message>
    <message id="health_hiding">
        <source></source>
        <translation>Hiding blocked applications</translation>
    </message>
    <message id="health_idle_time">
        <source></source>
        <translation>Noticing that keyboard and pointer are still</translation>
    </message>
    <message id="health_no_display">
        <source></source>
        <translation>There is no connection to a display.</translation>
    </message>
    <message id="health_no_display_remedy">
        <source></source>
        <translation>Start Norvin Focus from within a graphical session.</translation>
    </message>
    <message id="health_no_idle_source">
        <source></source>
        <translation>The display does not say how long keyboard and pointer have been still.</translation>
    </message>
    <message id="health_no_idle_source_remedy">
        <source></source>
        <translation>Switch on the MIT-SCREEN-SAVER extension of the X server.</translation>
    </message>
    <message id="health_no_login1">
        <source></source>
        <translation>The login service (logind) does not answer, so sleep goes unnoticed.</translation>
    </message>
    <message id="health_no_login1_remedy">
        <source></source>
        <translation>Make sure that systemd-logind or elogind runs.</translation>
    </message>
    <message id="health_no_notifications">
        <source></source>
        <translation>No service shows notifications on this desktop.</translation>
    </message>
    <message id="health_no_notifications_remedy">
        <source></source>
        <translation>Install a notification service such as dunst.</translation>
    </message>
    <message id="health_no_session_bus">
        <source></source>
        <translation>There is no session bus (D-Bus).</translation>
    </message>
    <message id="health_no_session_bus_remedy">
        <source></source>
        <translation>Start Norvin Focus from within a graphical session, or through dbus-run-session.</translation>
    </message>
    <message id="health_no_sound_device">
        <source></source>
        <translation>The sound server has no output.</translation>
    </message>
    <message id="health_no_sound_device_remedy">
        <source></source>
        <translation>Connect speakers or headphones, or choose an output in the sound settings.</translation>
    </message>
    <message id="health_no_sound_server">
        <source></source>
        <translation>No sound server answers.</translation>
    </message>
    <message id="health_no_sound_server_remedy">
        <source></source>
        <translation>Start PipeWire or PulseAudio.</translation>
    </message>
    <message id="health_no_sound_theme">
        <source></source>
        <translation>No sound theme is installed.</translation>
    </message>
    <message id="health_no_sound_theme_remedy">
        <source></source>
        <translation>Install a sound theme, for instance the package sound-theme-freedesktop.</translation>
    </message>
    <message id="health_no_tray">
        <source></source>
        <translation>No bar of this desktop shows a tray, so the item with the time is missing. This is no fault where the desktop has none.</translation>
    </message>
    <message id="health_no_tray_remedy">
        <source></source>
        <translation>Open the timer panel from the window’s menu. On GNOME, the AppIndicator extension adds a tray.</translation>
    </message>
    <message id="health_no_window_manager">
        <source></source>
        <translation>The window manager does not say which window is active.</translation>
    </message>
    <message id="health_no_window_manager_remedy">
        <source></source>
        <translation>Log in to a desktop whose window manager supports the usual hints (EWMH), such as GNOME, KDE Plasma, Xfce or LXQt.</translation>
    </message>
    <message id="health_notifications">
        <source></source>
        <translation>Notifications at the end of a phase</translation>
    </message>
    <message id="health_preferences">
        <source></source>
        <translation>Keeping your settings</translation>
    </message>
    <message id="health_preferences_damaged">
        <source></source>
        <translation>The settings file is damaged. The usual settings are in force.</translation>
    </message>
    <message id="health_preferences_damaged_remedy">
        <source></source>
        <translation>Your old file was not thrown away. Change a setting to write a new one.</translation>
    </message>
    <message id="health_preferences_unwritable">
        <source></source>
        <translation>The settings file cannot be written. Changes last only until you quit.</translation>
    </message>
    <message id="health_preferences_unwritable_remedy">
        <source></source>
        <translation>Check the free space and the permissions of your configuration directory.</translation>
    </message>
    <message id="health_problems" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n problem</numerusform>
            <numerusform>%n problems</numerusform>
        </translation>
    </message>
    <message id="health_session_bus">
        <source></source>
        <translation>Control by the command line and other programs</translation>
    </message>
    <message id="health_sleep">
        <source></source>
        <translation>Noticing that the machine sleeps</translation>
    </message>
    <message id="health_sound_server_silent">
        <source></source>
        <translation>The sound server does not answer.</translation>
    </message>
    <message id="health_sound_server_silent_remedy">
        <source></source>
        <translation>Restart PipeWire or PulseAudio; the ticks come back by themselves.</translation>
    </message>
    <message id="health_sounds">
        <source></source>
        <translation>Sounds</translation>
    </message>
    <message id="health_store">
        <source></source>
        <translation>Saving your tasks and sessions</translation>
    </message>
    <message id="health_store_unsaved">
        <source></source>
        <translation>Changes could not be written. They are kept in memory and tried again.</translation>
    </message>
    <message id="health_store_unsaved_remedy">
        <source></source>
        <translation>Check the free space and the permissions of your data directory before you quit.</translation>
    </message>
    <message id="health_subtitle">
        <source></source>
        <translation>What Norvin Focus can use of this desktop, and what to do about the rest.</translation>
    </message>
    <message id="health_ticks">
        <source></source>
        <translation>Ticks and ambient sound</translation>
    </message>
    <message id="health_title">
        <source></source>
        <translation>Tracking health</translation>
    </message>
    <message id="health_tray">
        <source></source>
        <translation>Item in the desktop’s tray</translation>
    </message>
    <message id="health_wayland_idle">
        <source></source>
        <translation>This Wayland desktop does not say how long keyboard and pointer have been still.</translation>
    </message>
    <message id="health_wayland_idle_remedy">
        <source></source>
        <translation>Choose the X11 (Xorg) variant of your desktop on the login screen.</translation>
    </message>
    <message id="health_wayland_overlay">
        <source></source>
        <translation>This Wayland desktop lets no window lie over all others, so a notification takes the alert’s place.</translation>
    </message>
    <message id="health_wayland_overlay_remedy">
        <source></source>
        <translation>Choose the X11 (Xorg) variant of your desktop on the login screen.</translation>
    </message>
    <message id="health_wayland_workspace">
        <source></source>
        <translation>This Wayland desktop does not let Norvin Focus see the windows of other applications.</translation>
    </message>
    <message id="health_wayland_workspace_remedy">
        <source></source>
        <translation>Choose the X11 (Xorg) variant of your desktop on the login screen.</translation>
    </message>
    <message id="health_works">
        <source></source>
        <translation>Works</translation>
    </message>
    <message id="history_app_analysis_title">
        <source></source>
        <translation>Applications</translation>
    </message>
    <message id="history_average_label">
        <source></source>
        <translation>average, out of 10</translation>
    </message>
    <message id="history_best_day_title">
        <source></source>
        <translation>Best day</translation>
    </message>
    <message id="history_by_category_title">
        <source></source>
        <translation>By category</translation>
    </message>
    <message id="history_completed_label">
        <source></source>
        <translation>completed</translation>
    </message>
    <message id="history_cumulated_label">
        <source></source>
        <translation>added up</translation>
    </message>
    <message id="history_focus_evolution_title">
        <source></source>
        <translation>Focus over time</translation>
    </message>
    <message id="history_focus_score_title">
        <source></source>
        <translation>Focus score</translation>
    </message>
    <message id="history_last_10_subtitle">
        <source></source>
        <translation>The last 10 of the period</translation>
    </message>
    <message id="history_no_app_data_period">
        <source></source>
        <translation>No application was measured in this period</translation>
    </message>
    <message id="history_no_distribution_data">
        <source></source>
        <translation>Nothing to spread over the week yet</translation>
    </message>
    <message id="history_no_sessions_period">
        <source></source>
        <translation>No completed session in this period</translation>
    </message>
    <message id="history_period_usage_subtitle">
        <source></source>
        <translation>Share of the time measured</translation>
    </message>
    <message id="history_recent_sessions_title">
        <source></source>
        <translation>Recent sessions</translation>
    </message>
    <message id="history_sessions_title">
        <source></source>
        <translation>Sessions</translation>
    </message>
    <message id="history_top_apps_title">
        <source></source>
        <translation>Most used</translation>
    </message>
    <message id="history_total_focus_title">
        <source></source>
        <translation>Total focus</translation>
    </message>
    <message id="history_weekly_distribution_subtitle">
        <source></source>
        <translation>Focus by the day on which a session began</translation>
    </message>
    <message id="history_weekly_distribution_title">
        <source></source>
        <translation>Days of the week</translation>
    </message>
    <message id="immersion_off">
        <source></source>
        <translation>Off</translation>
    </message>
    <message id="immersion_reduced_motion">
        <source></source>
        <translation>Your desktop asks for less motion: the window only deepens in colour.</translation>
    </message>
    <message id="immersion_subtitle">
        <source></source>
        <translation>The window sinks into deep water over the first minutes of a work phase</translation>
    </message>
    <message id="immersion_title">
        <source></source>
        <translation>Immersion</translation>
    </message>
    <message id="import_add_button">
        <source></source>
        <translation>Add to the lists</translation>
    </message>
    <message id="import_added" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n entry is new and would be added.</numerusform>
            <numerusform>%n entries are new and would be added.</numerusform>
        </translation>
    </message>
    <message id="import_cancel_button">
        <source></source>
        <translation>Cancel</translation>
    </message>
    <message id="import_close_button">
        <source></source>
        <translation>Close</translation>
    </message>
    <message id="import_contents">
        <source></source>
        <translation>The file holds %1 and %2.</translation>
    </message>
    <message id="import_nothing_new">
        <source></source>
        <translation>The lists hold exactly the same already.</translation>
    </message>
    <message id="import_refused_message">
        <source></source>
        <translation>Nothing was changed.</translation>
    </message>
    <message id="import_refused_title">
        <source></source>
        <translation>%1 was refused</translation>
    </message>
    <message id="import_removed" numerus="yes">
        <source></source>
        <translation>
            <numerusform>Replacing would also take away %n entry that the file does not have.</numerusform>
            <numerusform>Replacing would also take away %n entries that the file does not have.</numerusform>
        </translation>
    </message>
    <message id="import_replace_button">
        <source></source>
        <translation>Replace the lists</translation>
    </message>
    <message id="import_title">
        <source></source>
        <translation>Import %1?</translation>
    </message>
    <message id="inactivity_hint">
        <source></source>
        <translation>While keyboard and pointer rest during a work phase, the session says that you are inactive.</translation>
    </message>
    <message id="inactivity_notice">
        <source></source>
        <translation>Keyboard and pointer have been still for a while. Inactive in this session: %1.</translation>
    </message>
    <message id="inactivity_switch">
        <source></source>
        <translation>Notice when I am away</translation>
    </message>
    <message id="inactivity_threshold_label">
        <source></source>
        <translation>Away after</translation>
    </message>
    <message id="kpi_apps">
        <source></source>
        <translation>Applications</translation>
    </message>
    <message id="kpi_average">
        <source></source>
        <translation>average, out of 10</translation>
    </message>
    <message id="kpi_completed">
        <source></source>
        <translation>completed today</translation>
    </message>
    <message id="kpi_consecutive">
        <source></source>
        <translation>in a row</translation>
    </message>
    <message id="kpi_focus">
        <source></source>
        <translation>Focus time</translation>
    </message>
    <message id="kpi_score">
        <source></source>
        <translation>Focus score</translation>
    </message>
    <message id="kpi_sessions">
        <source></source>
        <translation>Sessions</translation>
    </message>
    <message id="kpi_streak">
        <source></source>
        <translation>Streak</translation>
    </message>
    <message id="kpi_streak_unit" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n day</numerusform>
            <numerusform>%n days</numerusform>
        </translation>
    </message>
    <message id="kpi_total_time">
        <source></source>
        <translation>in total today</translation>
    </message>
    <message id="kpi_used">
        <source></source>
        <translation>in use today</translation>
    </message>
    <message id="language_label">
        <source></source>
        <translation>Language</translation>
    </message>
    <message id="late_tasks" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n late task</numerusform>
            <numerusform>%n late tasks</numerusform>
        </translation>
    </message>
    <message id="late_tasks_none">
        <source></source>
        <translation>Nothing is late any more.</translation>
    </message>
    <message id="late_tasks_subtitle">
        <source></source>
        <translation>Due or planned for a day that is over. A deadline stays until you move it in the task.</translation>
    </message>
    <message id="late_tasks_title">
        <source></source>
        <translation>Late tasks</translation>
    </message>
    <message id="length_minutes">
        <source></source>
        <translation>%1 min</translation>
    </message>
    <message id="licence_all_filter">
        <source></source>
        <translation>All files</translation>
    </message>
    <message id="licence_bad_signature">
        <source></source>
        <translation>This licence has been changed or damaged: its signature does not fit.</translation>
    </message>
    <message id="licence_choose_button">
        <source></source>
        <translation>Choose a file…</translation>
    </message>
    <message id="licence_choose_title">
        <source></source>
        <translation>Choose a licence</translation>
    </message>
    <message id="licence_closed_explanation">
        <source></source>
        <translation>New sessions need a licence. What you have recorded can always be read and exported. A licence is verified on this computer; nobody is asked.</translation>
    </message>
    <message id="licence_ended">
        <source></source>
        <translation>The licence of %1 ended on %2.</translation>
    </message>
    <message id="licence_enter_button">
        <source></source>
        <translation>Enter a licence</translation>
    </message>
    <message id="licence_file_filter">
        <source></source>
        <translation>Licences</translation>
    </message>
    <message id="licence_free">
        <source></source>
        <translation>This copy of Norvin Focus is free to use and needs no licence.</translation>
    </message>
    <message id="licence_install_button">
        <source></source>
        <translation>Use this licence</translation>
    </message>
    <message id="licence_invalid">
        <source></source>
        <translation>The licence on this computer cannot be used.</translation>
    </message>
    <message id="licence_licensed">
        <source></source>
        <translation>Licensed to %1</translation>
    </message>
    <message id="licence_not_written">
        <source></source>
        <translation>The licence could not be stored. Is the disk full?</translation>
    </message>
    <message id="licence_other_product">
        <source></source>
        <translation>This licence is for another product.</translation>
    </message>
    <message id="licence_over">
        <source></source>
        <translation>This licence is over.</translation>
    </message>
    <message id="licence_paste_button">
        <source></source>
        <translation>Paste a licence…</translation>
    </message>
    <message id="licence_paste_placeholder">
        <source></source>
        <translation>Paste the whole licence here, from “product” to the end of the signature.</translation>
    </message>
    <message id="licence_trial_days" numerus="yes">
        <source></source>
        <translation>
            <numerusform>Trial: %n day left</numerusform>
            <numerusform>Trial: %n days left</numerusform>
        </translation>
    </message>
    <message id="licence_trial_explanation">
        <source></source>
        <translation>After the trial, new sessions need a licence. What you have recorded can always be read and exported. A licence is verified on this computer; nobody is asked.</translation>
    </message>
    <message id="licence_trial_over">
        <source></source>
        <translation>The trial is over.</translation>
    </message>
    <message id="licence_unreadable">
        <source></source>
        <translation>This is not a licence of Norvin Focus.</translation>
    </message>
    <message id="licence_until">
        <source></source>
        <translation>Valid until %1.</translation>
    </message>
    <message id="licence_without_end">
        <source></source>
        <translation>Valid without end.</translation>
    </message>
    <message id="list_blocked">
        <source></source>
        <translation>Blocked</translation>
    </message>
    <message id="list_file_empty_name">
        <source></source>
        <translation>An identifier in “%1” is empty.</translation>
    </message>
    <message id="list_file_line">
        <source></source>
        <translation>Line %1: %2</translation>
    </message>
    <message id="list_file_missing_key">
        <source></source>
        <translation>“%1” is missing.</translation>
    </message>
    <message id="list_file_no_lists">
        <source></source>
        <translation>This is not a file of block lists.</translation>
    </message>
    <message id="list_file_not_a_list">
        <source></source>
        <translation>“%1” has to be a list, in square brackets.</translation>
    </message>
    <message id="list_file_not_a_site">
        <source></source>
        <translation>“%1” is not a site.</translation>
    </message>
    <message id="list_file_not_a_text">
        <source></source>
        <translation>The entries of “%1” have to be texts, in quotation marks.</translation>
    </message>
    <message id="list_file_not_an_object">
        <source></source>
        <translation>“%1” has to be an object, in braces.</translation>
    </message>
    <message id="list_file_not_json">
        <source></source>
        <translation>This is not valid JSON (%1).</translation>
    </message>
    <message id="list_file_repeated_key">
        <source></source>
        <translation>“%1” is there twice.</translation>
    </message>
    <message id="list_file_too_large">
        <source></source>
        <translation>The file is too large for block lists.</translation>
    </message>
    <message id="list_file_unknown_key">
        <source></source>
        <translation>“%1” is not known here.</translation>
    </message>
    <message id="list_file_unreadable">
        <source></source>
        <translation>The file cannot be read: %1</translation>
    </message>
    <message id="list_file_wrong_version">
        <source></source>
        <translation>Version “%1” of the file is not known here; perhaps a newer Norvin Focus wrote it.</translation>
    </message>
    <message id="list_none">
        <source></source>
        <translation>None</translation>
    </message>
    <message id="list_whitelisted">
        <source></source>
        <translation>Whitelisted</translation>
    </message>
    <message id="lists_export_button">
        <source></source>
        <translation>Export…</translation>
    </message>
    <message id="lists_export_title">
        <source></source>
        <translation>Export the block lists</translation>
    </message>
    <message id="lists_file_filter">
        <source></source>
        <translation>Block lists</translation>
    </message>
    <message id="lists_import_button">
        <source></source>
        <translation>Import…</translation>
    </message>
    <message id="lists_import_title">
        <source></source>
        <translation>Import block lists</translation>
    </message>
    <message id="manage_phases_empty_subtitle">
        <source></source>
        <translation>Phases part a long board into its stages.</translation>
    </message>
    <message id="manage_phases_empty_title">
        <source></source>
        <translation>No phases yet</translation>
    </message>
    <message id="manage_phases_subtitle">
        <source></source>
        <translation>Each is a tab of the board. F2 renames, Alt+↑↓ moves, Delete deletes.</translation>
    </message>
    <message id="manage_phases_title">
        <source></source>
        <translation>Phases</translation>
    </message>
    <message id="next_step_label">
        <source></source>
        <translation>What comes next?</translation>
    </message>
    <message id="no_app_data_today">
        <source></source>
        <translation>Applications appear here once a session has measured them</translation>
    </message>
    <message id="no_scores_today">
        <source></source>
        <translation>No session with a focus score today yet</translation>
    </message>
    <message id="no_sessions_today">
        <source></source>
        <translation>No completed session today yet</translation>
    </message>
    <message id="nothing_planned">
        <source></source>
        <translation>Nothing planned</translation>
    </message>
    <message id="nothing_planned_subtitle">
        <source></source>
        <translation>Choose what this day is for. Tasks of today are put in line for Deep Work.</translation>
    </message>
    <message id="notice_browser_whitelisted">
        <source></source>
        <translation>%1 is on the whitelist of applications now.</translation>
    </message>
    <message id="notice_close_button">
        <source></source>
        <translation>Close</translation>
    </message>
    <message id="notice_export_failed">
        <source></source>
        <translation>The lists could not be saved: %1</translation>
    </message>
    <message id="notice_exported">
        <source></source>
        <translation>The lists were saved as %1.</translation>
    </message>
    <message id="notice_imported">
        <source></source>
        <translation>The lists of %1 were imported.</translation>
    </message>
    <message id="notice_imported_nothing">
        <source></source>
        <translation>%1 holds nothing that the lists do not have.</translation>
    </message>
    <message id="notice_site_added">
        <source></source>
        <translation>%1 was added.</translation>
    </message>
    <message id="notice_site_moved">
        <source></source>
        <translation>%1 was moved to the other list.</translation>
    </message>
    <message id="notice_site_removed">
        <source></source>
        <translation>%1 was removed.</translation>
    </message>
    <message id="notice_sites_added" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n site was added.</numerusform>
            <numerusform>%n sites were added.</numerusform>
        </translation>
    </message>
    <message id="notice_sites_copied" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n entry of %1 was copied.</numerusform>
            <numerusform>%n entries of %1 were copied.</numerusform>
        </translation>
    </message>
    <message id="notice_suggestions_added" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n suggestion was added.</numerusform>
            <numerusform>%n suggestions were added.</numerusform>
        </translation>
    </message>
    <message id="notice_taken_back">
        <source></source>
        <translation>Taken back.</translation>
    </message>
    <message id="notif_break_complete_body">
        <source></source>
        <translation>Ready for the next work phase?</translation>
    </message>
    <message id="notif_break_complete_title">
        <source></source>
        <translation>Break over</translation>
    </message>
    <message id="notif_rearming_complete_body">
        <source></source>
        <translation>Your head is clear. Start the next work phase when you like.</translation>
    </message>
    <message id="notif_rearming_complete_title">
        <source></source>
        <translation>Re-arming finished</translation>
    </message>
    <message id="notif_work_complete_body">
        <source></source>
        <translation>Well done. Time for a break when you are ready.</translation>
    </message>
    <message id="notif_work_complete_title">
        <source></source>
        <translation>Work phase finished</translation>
    </message>
    <message id="overview_tab">
        <source></source>
        <translation>Overview</translation>
    </message>
    <message id="palette_empty">
        <source></source>
        <translation>Nothing goes by that name.</translation>
    </message>
    <message id="palette_kind_project">
        <source></source>
        <translation>Project</translation>
    </message>
    <message id="palette_kind_task">
        <source></source>
        <translation>Task</translation>
    </message>
    <message id="palette_open">
        <source></source>
        <translation>Search everything (Ctrl+K)</translation>
    </message>
    <message id="palette_placeholder">
        <source></source>
        <translation>Go to a page, task or project, or do something</translation>
    </message>
    <message id="palette_results">
        <source></source>
        <translation>Results</translation>
    </message>
    <message id="panel_open_window">
        <source></source>
        <translation>Open Norvin Focus</translation>
    </message>
    <message id="panel_task_placeholder">
        <source></source>
        <translation>Add a task</translation>
    </message>
    <message id="panel_title">
        <source></source>
        <translation>Timer panel</translation>
    </message>
    <message id="pause_button">
        <source></source>
        <translation>Pause</translation>
    </message>
    <message id="per_hour_today_subtitle">
        <source></source>
        <translation>Today, hour by hour</translation>
    </message>
    <message id="period_12_months_label">
        <source></source>
        <translation>Today and the 365 days before</translation>
    </message>
    <message id="period_30_days_label">
        <source></source>
        <translation>Today and the 30 days before</translation>
    </message>
    <message id="period_7_days_label">
        <source></source>
        <translation>Today and the 7 days before</translation>
    </message>
    <message id="period_all">
        <source></source>
        <translation>All</translation>
    </message>
    <message id="period_all_time_label">
        <source></source>
        <translation>Everything on record</translation>
    </message>
    <message id="period_month">
        <source></source>
        <translation>Month</translation>
    </message>
    <message id="period_today">
        <source></source>
        <translation>Today</translation>
    </message>
    <message id="period_today_label">
        <source></source>
        <translation>Today</translation>
    </message>
    <message id="period_week">
        <source></source>
        <translation>Week</translation>
    </message>
    <message id="period_year">
        <source></source>
        <translation>Year</translation>
    </message>
    <message id="phase_add_button">
        <source></source>
        <translation>Add</translation>
    </message>
    <message id="phase_break">
        <source></source>
        <translation>Break</translation>
    </message>
    <message id="phase_delete_button">
        <source></source>
        <translation>Delete “%1”</translation>
    </message>
    <message id="phase_idle">
        <source></source>
        <translation>Ready to focus</translation>
    </message>
    <message id="phase_name_label">
        <source></source>
        <translation>Phase name</translation>
    </message>
    <message id="phase_placeholder">
        <source></source>
        <translation>Add a phase</translation>
    </message>
    <message id="phase_rearming">
        <source></source>
        <translation>Re-arming</translation>
    </message>
    <message id="phase_remove_button">
        <source></source>
        <translation>Remove “%1”</translation>
    </message>
    <message id="phase_rename_button">
        <source></source>
        <translation>Rename “%1”</translation>
    </message>
    <message id="phase_row_name">
        <source></source>
        <translation>Phase %1</translation>
    </message>
    <message id="phase_work">
        <source></source>
        <translation>Work phase</translation>
    </message>
    <message id="phases_label">
        <source></source>
        <translation>Phases</translation>
    </message>
    <message id="pick_count" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n open task</numerusform>
            <numerusform>%n open tasks</numerusform>
        </translation>
    </message>
    <message id="pick_list_name">
        <source></source>
        <translation>Open tasks</translation>
    </message>
    <message id="pick_no_tasks">
        <source></source>
        <translation>There are no open tasks yet.</translation>
    </message>
    <message id="pick_none_button">
        <source></source>
        <translation>Choose tasks</translation>
    </message>
    <message id="pick_nothing_found">
        <source></source>
        <translation>No open task matches.</translation>
    </message>
    <message id="pick_plan_button" numerus="yes">
        <source></source>
        <translation>
            <numerusform>Plan %n task</numerusform>
            <numerusform>Plan %n tasks</numerusform>
        </translation>
    </message>
    <message id="pick_search_placeholder">
        <source></source>
        <translation>Search in all open tasks</translation>
    </message>
    <message id="plan_for_day">
        <source></source>
        <translation>Plan for another day</translation>
    </message>
    <message id="plan_for_day_title">
        <source></source>
        <translation>A day for “%1”</translation>
    </message>
    <message id="plan_for_today">
        <source></source>
        <translation>Plan for today</translation>
    </message>
    <message id="plan_task">
        <source></source>
        <translation>Plan existing tasks</translation>
    </message>
    <message id="planning_day_label">
        <source></source>
        <translation>Day</translation>
    </message>
    <message id="planning_export_button">
        <source></source>
        <translation>Export projects and tasks</translation>
    </message>
    <message id="planning_export_title">
        <source></source>
        <translation>Export projects and tasks</translation>
    </message>
    <message id="planning_exported_format">
        <source></source>
        <translation>Exported to %2: %1.</translation>
    </message>
    <message id="planning_file_broken_line">
        <source></source>
        <translation>This is no line of a calendar: “%1”.</translation>
    </message>
    <message id="planning_file_exists">
        <source></source>
        <translation>%1 exists already.</translation>
    </message>
    <message id="planning_file_line">
        <source></source>
        <translation>Line %1: %2</translation>
    </message>
    <message id="planning_file_missing_member">
        <source></source>
        <translation>“%1” is missing.</translation>
    </message>
    <message id="planning_file_no_calendar">
        <source></source>
        <translation>This is not an iCalendar file.</translation>
    </message>
    <message id="planning_file_no_plan">
        <source></source>
        <translation>This is not a file of projects and tasks.</translation>
    </message>
    <message id="planning_file_no_title">
        <source></source>
        <translation>The task has no title.</translation>
    </message>
    <message id="planning_file_not_a_day">
        <source></source>
        <translation>“%1” takes a day such as 2025-03-10, not “%2”.</translation>
    </message>
    <message id="planning_file_not_a_list">
        <source></source>
        <translation>“%1” has to be a list, in square brackets.</translation>
    </message>
    <message id="planning_file_not_a_number">
        <source></source>
        <translation>“%1” has to be a whole number.</translation>
    </message>
    <message id="planning_file_not_a_text">
        <source></source>
        <translation>“%1” has to be a text, in quotation marks.</translation>
    </message>
    <message id="planning_file_not_an_id">
        <source></source>
        <translation>“%1” has to be an id of 32 hexadecimal digits with hyphens, not “%2”.</translation>
    </message>
    <message id="planning_file_not_an_instant">
        <source></source>
        <translation>“%1” has to be an instant in UTC, in the form of ISO 8601, not “%2”.</translation>
    </message>
    <message id="planning_file_not_an_object">
        <source></source>
        <translation>The entries of “%1” have to be objects, in braces.</translation>
    </message>
    <message id="planning_file_not_base64">
        <source></source>
        <translation>“%1” has to be data in base64.</translation>
    </message>
    <message id="planning_file_not_json">
        <source></source>
        <translation>This is not valid JSON (%1).</translation>
    </message>
    <message id="planning_file_not_utf8">
        <source></source>
        <translation>The line is not in UTF-8.</translation>
    </message>
    <message id="planning_file_repeated_id">
        <source></source>
        <translation>The id “%1” is there twice.</translation>
    </message>
    <message id="planning_file_repeated_member">
        <source></source>
        <translation>“%1” is there twice.</translation>
    </message>
    <message id="planning_file_ring">
        <source></source>
        <translation>“%1” would be a subtask of itself.</translation>
    </message>
    <message id="planning_file_too_large">
        <source></source>
        <translation>The file is too large for projects and tasks.</translation>
    </message>
    <message id="planning_file_unclosed">
        <source></source>
        <translation>“%1” begins here and does not end.</translation>
    </message>
    <message id="planning_file_unknown_format">
        <source></source>
        <translation>“%1” has to end in .json, .txt or .ics.</translation>
    </message>
    <message id="planning_file_unknown_member">
        <source></source>
        <translation>“%1” is not known here.</translation>
    </message>
    <message id="planning_file_unknown_phase">
        <source></source>
        <translation>There is no phase with the id “%1”.</translation>
    </message>
    <message id="planning_file_unknown_project">
        <source></source>
        <translation>There is no project with the id “%1”.</translation>
    </message>
    <message id="planning_file_unknown_task">
        <source></source>
        <translation>There is no task with the id “%1”.</translation>
    </message>
    <message id="planning_file_unknown_zone">
        <source></source>
        <translation>The time zone “%1” is not known.</translation>
    </message>
    <message id="planning_file_unreadable">
        <source></source>
        <translation>The file cannot be read: %1</translation>
    </message>
    <message id="planning_file_unwritable">
        <source></source>
        <translation>The file cannot be written: %1</translation>
    </message>
    <message id="planning_file_wrong_value">
        <source></source>
        <translation>“%2” is no value for %1 here.</translation>
    </message>
    <message id="planning_file_wrong_version">
        <source></source>
        <translation>Version “%1” of the file is not known here; perhaps a newer program wrote it.</translation>
    </message>
    <message id="planning_filter_all">
        <source></source>
        <translation>Everything that can be read</translation>
    </message>
    <message id="planning_filter_calendar">
        <source></source>
        <translation>iCalendar</translation>
    </message>
    <message id="planning_filter_json">
        <source></source>
        <translation>All of planning</translation>
    </message>
    <message id="planning_filter_todo">
        <source></source>
        <translation>Todo.txt</translation>
    </message>
    <message id="planning_import_button">
        <source></source>
        <translation>Import projects and tasks</translation>
    </message>
    <message id="planning_import_ignored" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n other entry of the file is no task and was left out.</numerusform>
            <numerusform>%n other entries of the file are no tasks and were left out.</numerusform>
        </translation>
    </message>
    <message id="planning_import_there_format">
        <source></source>
        <translation>Already here, and left as it is: %1.</translation>
    </message>
    <message id="planning_import_title">
        <source></source>
        <translation>Import projects and tasks</translation>
    </message>
    <message id="planning_imported_format">
        <source></source>
        <translation>Imported: %1.</translation>
    </message>
    <message id="planning_imported_nothing">
        <source></source>
        <translation>There was nothing new to import.</translation>
    </message>
    <message id="planning_sheet_title">
        <source></source>
        <translation>Plan: %1</translation>
    </message>
    <message id="planning_tab_existing">
        <source></source>
        <translation>Existing tasks</translation>
    </message>
    <message id="planning_tab_new">
        <source></source>
        <translation>New task</translation>
    </message>
    <message id="planning_tabs_name">
        <source></source>
        <translation>What to plan</translation>
    </message>
    <message id="preferences_around_title">
        <source></source>
        <translation>During a session</translation>
    </message>
    <message id="preferences_data_tab">
        <source></source>
        <translation>Data</translation>
    </message>
    <message id="preferences_feedback_title">
        <source></source>
        <translation>Feedback</translation>
    </message>
    <message id="preferences_general_tab">
        <source></source>
        <translation>General</translation>
    </message>
    <message id="preferences_inactivity_title">
        <source></source>
        <translation>Inactivity</translation>
    </message>
    <message id="preferences_licence_title">
        <source></source>
        <translation>Licence</translation>
    </message>
    <message id="preferences_lists_button">
        <source></source>
        <translation>Open the lists</translation>
    </message>
    <message id="preferences_lists_hint">
        <source></source>
        <translation>Applications and sites that are blocked or count as work.</translation>
    </message>
    <message id="preferences_lists_label">
        <source></source>
        <translation>Block lists</translation>
    </message>
    <message id="preferences_phases_text">
        <source></source>
        <translation>These lengths are fixed. How long a work phase lasts can be chosen anew for each session.</translation>
    </message>
    <message id="preferences_phases_title">
        <source></source>
        <translation>Phases</translation>
    </message>
    <message id="preferences_program_tab">
        <source></source>
        <translation>Program</translation>
    </message>
    <message id="preferences_session_tab">
        <source></source>
        <translation>Sessions</translation>
    </message>
    <message id="preferences_sound_tab">
        <source></source>
        <translation>Sounds</translation>
    </message>
    <message id="preferences_start_title">
        <source></source>
        <translation>Start</translation>
    </message>
    <message id="preferences_subtitle">
        <source></source>
        <translation>What you change here counts at once.</translation>
    </message>
    <message id="preferences_subtitle_named">
        <source></source>
        <translation>Hello %1. What you change here counts at once.</translation>
    </message>
    <message id="preferences_title">
        <source></source>
        <translation>Preferences</translation>
    </message>
    <message id="preferences_updates_title">
        <source></source>
        <translation>Updates</translation>
    </message>
    <message id="preferences_you_title">
        <source></source>
        <translation>You</translation>
    </message>
    <message id="priority_high">
        <source></source>
        <translation>High</translation>
    </message>
    <message id="priority_low">
        <source></source>
        <translation>Low</translation>
    </message>
    <message id="priority_medium">
        <source></source>
        <translation>Medium</translation>
    </message>
    <message id="profile_name_hint">
        <source></source>
        <translation>The program greets you by it; it stays on this computer.</translation>
    </message>
    <message id="profile_name_label">
        <source></source>
        <translation>Your name</translation>
    </message>
    <message id="profile_name_placeholder">
        <source></source>
        <translation>None</translation>
    </message>
    <message id="project_color_label">
        <source></source>
        <translation>Colour</translation>
    </message>
    <message id="project_color_name">
        <source></source>
        <translation>%1, %2 of %3</translation>
    </message>
    <message id="project_count" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n project</numerusform>
            <numerusform>%n projects</numerusform>
        </translation>
    </message>
    <message id="project_delete_button">
        <source></source>
        <translation>Delete project</translation>
    </message>
    <message id="project_description_label">
        <source></source>
        <translation>Description</translation>
    </message>
    <message id="project_description_placeholder">
        <source></source>
        <translation>What is it about?</translation>
    </message>
    <message id="project_discard_button">
        <source></source>
        <translation>Close</translation>
    </message>
    <message id="project_discard_message">
        <source></source>
        <translation>What you have changed here is not saved yet.</translation>
    </message>
    <message id="project_discard_title">
        <source></source>
        <translation>Close without saving?</translation>
    </message>
    <message id="project_icon_label">
        <source></source>
        <translation>Icon</translation>
    </message>
    <message id="project_icon_name">
        <source></source>
        <translation>Icon %1 of %2</translation>
    </message>
    <message id="project_keep_button">
        <source></source>
        <translation>Keep editing</translation>
    </message>
    <message id="project_keys_hint">
        <source></source>
        <translation>Ctrl+Enter saves</translation>
    </message>
    <message id="project_more_button">
        <source></source>
        <translation>What to do with “%1”</translation>
    </message>
    <message id="project_name_label">
        <source></source>
        <translation>Name</translation>
    </message>
    <message id="project_name_placeholder">
        <source></source>
        <translation>What is it called?</translation>
    </message>
    <message id="project_new_button">
        <source></source>
        <translation>New project</translation>
    </message>
    <message id="project_no_tasks">
        <source></source>
        <translation>No tasks yet</translation>
    </message>
    <message id="project_open_button">
        <source></source>
        <translation>Open board</translation>
    </message>
    <message id="project_progress" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%1 of %n task done</numerusform>
            <numerusform>%1 of %n tasks done</numerusform>
        </translation>
    </message>
    <message id="project_search_placeholder">
        <source></source>
        <translation>Search projects</translation>
    </message>
    <message id="project_sort_created">
        <source></source>
        <translation>Newest</translation>
    </message>
    <message id="project_sort_label">
        <source></source>
        <translation>Sort by</translation>
    </message>
    <message id="project_sort_name">
        <source></source>
        <translation>Name</translation>
    </message>
    <message id="project_sort_progress">
        <source></source>
        <translation>Progress</translation>
    </message>
    <message id="projects_count_plural" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n project</numerusform>
            <numerusform>%n projects</numerusform>
        </translation>
    </message>
    <message id="projects_empty_subtitle">
        <source></source>
        <translation>A project gathers the tasks of one undertaking, puts them on a board and shows how far you are.</translation>
    </message>
    <message id="projects_empty_title">
        <source></source>
        <translation>No projects yet</translation>
    </message>
    <message id="projects_no_match_subtitle">
        <source></source>
        <translation>Nothing in the names and descriptions is like “%1”.</translation>
    </message>
    <message id="projects_no_match_title">
        <source></source>
        <translation>No project matches</translation>
    </message>
    <message id="projects_subtitle">
        <source></source>
        <translation>A project gathers tasks on a board of its own.</translation>
    </message>
    <message id="projects_title">
        <source></source>
        <translation>Projects</translation>
    </message>
    <message id="queue_empty_subtitle">
        <source></source>
        <translation>Type what you want to get done and press Enter. Then start.</translation>
    </message>
    <message id="queue_empty_title">
        <source></source>
        <translation>No tasks yet</translation>
    </message>
    <message id="queue_keys_hint">
        <source></source>
        <translation>Enter: work on it · Ctrl+Enter: tick off · +: subtask · Alt+↑↓: move · Del: remove</translation>
    </message>
    <message id="queued_tasks" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n task in the queue</numerusform>
            <numerusform>%n tasks in the queue</numerusform>
        </translation>
    </message>
    <message id="quick_add_added">
        <source></source>
        <translation>“%1” was added · %2</translation>
    </message>
    <message id="quick_add_button">
        <source></source>
        <translation>Add</translation>
    </message>
    <message id="quick_add_help">
        <source></source>
        <translation>! priority · # project · @ phase · a day, or “by” and a day. A backslash (\) keeps a word in the title.</translation>
    </message>
    <message id="quick_add_hint">
        <source></source>
        <translation>Write report !high #Thesis @Draft tomorrow by 12 December</translation>
    </message>
    <message id="quick_add_name">
        <source></source>
        <translation>New task</translation>
    </message>
    <message id="quick_add_needs_title">
        <source></source>
        <translation>A task needs a title beside these words.</translation>
    </message>
    <message id="quick_add_placeholder">
        <source></source>
        <translation>Add a task to this day, then Enter</translation>
    </message>
    <message id="quit_button">
        <source></source>
        <translation>Quit</translation>
    </message>
    <message id="quit_cancel_button">
        <source></source>
        <translation>Keep going</translation>
    </message>
    <message id="quit_message">
        <source></source>
        <translation>A phase is under way. If you quit now, it ends and is not recorded. Closing the window instead keeps it going.</translation>
    </message>
    <message id="quit_title">
        <source></source>
        <translation>Quit and lose the session?</translation>
    </message>
    <message id="quoted_format">
        <source></source>
        <translation>“%1”</translation>
    </message>
    <message id="ready_to_start_subtitle">
        <source></source>
        <translation>Ready when you are: start one on the Deep Work page</translation>
    </message>
    <message id="rearming_button">
        <source></source>
        <translation>Re-arm</translation>
    </message>
    <message id="rearming_subtitle">
        <source></source>
        <translation>A moment to put things in order before the next work phase. Nothing is measured or blocked.</translation>
    </message>
    <message id="refresh_data_help">
        <source></source>
        <translation>Read the records again</translation>
    </message>
    <message id="refused_app_empty">
        <source></source>
        <translation>Name an application.</translation>
    </message>
    <message id="refused_day_unknown">
        <source></source>
        <translation>“%1” is no day. Give it as 2025-03-10, today or tomorrow.</translation>
    </message>
    <message id="refused_licence_over">
        <source></source>
        <translation>The licence is over: a new session needs a new one.</translation>
    </message>
    <message id="refused_no_projects">
        <source></source>
        <translation>No project is called “%1”; there are none yet.</translation>
    </message>
    <message id="refused_path_not_absolute">
        <source></source>
        <translation>“%1” is not the whole path of a file.</translation>
    </message>
    <message id="refused_pause_not_running">
        <source></source>
        <translation>Nothing is running that could be paused.</translation>
    </message>
    <message id="refused_period_unknown">
        <source></source>
        <translation>There is no period “%1”: it is today, week, month, year or all.</translation>
    </message>
    <message id="refused_priority_unknown">
        <source></source>
        <translation>The priority is low, medium or high, not “%1”.</translation>
    </message>
    <message id="refused_project_ambiguous">
        <source></source>
        <translation>Several projects are called “%1”: %2. Give the beginning of the id.</translation>
    </message>
    <message id="refused_project_unknown">
        <source></source>
        <translation>No project is called “%1”. There are: %2.</translation>
    </message>
    <message id="refused_records_unreadable">
        <source></source>
        <translation>The records cannot be read: %1</translation>
    </message>
    <message id="refused_resume_not_paused">
        <source></source>
        <translation>Nothing is paused that could be resumed.</translation>
    </message>
    <message id="refused_site_invalid">
        <source></source>
        <translation>This is not the address of a site. Give a domain such as example.org.</translation>
    </message>
    <message id="refused_start_already_running">
        <source></source>
        <translation>A phase is already under way. Stop it before starting another one.</translation>
    </message>
    <message id="refused_stop_nothing_runs">
        <source></source>
        <translation>Nothing is running that could be stopped.</translation>
    </message>
    <message id="refused_task_already_done">
        <source></source>
        <translation>“%1” is done already.</translation>
    </message>
    <message id="refused_task_ambiguous">
        <source></source>
        <translation>Several tasks have an id that begins with “%1”: %2.</translation>
    </message>
    <message id="refused_task_id">
        <source></source>
        <translation>“%1” is no id. An id is four or more hexadecimal digits.</translation>
    </message>
    <message id="refused_task_title_empty">
        <source></source>
        <translation>A task needs a title.</translation>
    </message>
    <message id="refused_task_unknown">
        <source></source>
        <translation>No task has an id that begins with “%1”.</translation>
    </message>
    <message id="refused_trial_over">
        <source></source>
        <translation>The trial is over: a new session needs a licence.</translation>
    </message>
    <message id="resource_missing">
        <source></source>
        <translation>The file is missing</translation>
    </message>
    <message id="resource_missing_name">
        <source></source>
        <translation>%1, the file is missing</translation>
    </message>
    <message id="resource_open">
        <source></source>
        <translation>Open %1</translation>
    </message>
    <message id="resource_remove">
        <source></source>
        <translation>Take %1 off the task</translation>
    </message>
    <message id="resources_add_button">
        <source></source>
        <translation>Attach a file</translation>
    </message>
    <message id="resources_all_files">
        <source></source>
        <translation>All files</translation>
    </message>
    <message id="resources_choose_title">
        <source></source>
        <translation>Attach files</translation>
    </message>
    <message id="resources_drop_here">
        <source></source>
        <translation>Files can be dropped here. They stay where they are.</translation>
    </message>
    <message id="resources_drop_now">
        <source></source>
        <translation>Let go to attach</translation>
    </message>
    <message id="resources_title">
        <source></source>
        <translation>Files</translation>
    </message>
    <message id="restore_button">
        <source></source>
        <translation>Restore and restart</translation>
    </message>
    <message id="restore_message">
        <source></source>
        <translation>Everything becomes as it was on %1 (%2). What there is now is backed up first, so that you can come back to it. The program starts again.</translation>
    </message>
    <message id="restore_open_button">
        <source></source>
        <translation>Restore…</translation>
    </message>
    <message id="restore_title">
        <source></source>
        <translation>Restore this backup?</translation>
    </message>
    <message id="resume_button">
        <source></source>
        <translation>Resume</translation>
    </message>
    <message id="ring_idle">
        <source></source>
        <translation>planned</translation>
    </message>
    <message id="ring_paused">
        <source></source>
        <translation>paused</translation>
    </message>
    <message id="ring_running">
        <source></source>
        <translation>left</translation>
    </message>
    <message id="save_project_action">
        <source></source>
        <translation>Save</translation>
    </message>
    <message id="score_evolution_title">
        <source></source>
        <translation>Focus score, session by session</translation>
    </message>
    <message id="score_hide_terms">
        <source></source>
        <translation>Hide the explanation</translation>
    </message>
    <message id="score_label">
        <source></source>
        <translation>Focus score</translation>
    </message>
    <message id="score_maximum">
        <source></source>
        <translation>/ 10</translation>
    </message>
    <message id="score_not_enough_data">
        <source></source>
        <translation>Not enough data yet: it takes 10 measured seconds.</translation>
    </message>
    <message id="score_show_terms">
        <source></source>
        <translation>Explain the score</translation>
    </message>
    <message id="score_term_app_attempts" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n attempt to open a blocked application</numerusform>
            <numerusform>%n attempts to open a blocked application</numerusform>
        </translation>
    </message>
    <message id="score_term_interruptions" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n interruption</numerusform>
            <numerusform>%n interruptions</numerusform>
        </translation>
    </message>
    <message id="score_term_ratio">
        <source></source>
        <translation>%1 % of the measured time was legitimate</translation>
    </message>
    <message id="score_term_site_attempts" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n attempt to open a blocked site</numerusform>
            <numerusform>%n attempts to open a blocked site</numerusform>
        </translation>
    </message>
    <message id="score_term_subtasks" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n finished subtask</numerusform>
            <numerusform>%n finished subtasks</numerusform>
        </translation>
    </message>
    <message id="score_term_tasks" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n finished task</numerusform>
            <numerusform>%n finished tasks</numerusform>
        </translation>
    </message>
    <message id="score_term_total">
        <source></source>
        <translation>Score, kept between 0 and 10</translation>
    </message>
    <message id="session_change_task_button">
        <source></source>
        <translation>Change task…</translation>
    </message>
    <message id="session_delete_button">
        <source></source>
        <translation>Delete this session</translation>
    </message>
    <message id="session_detail_title">
        <source></source>
        <translation>Session</translation>
    </message>
    <message id="session_score_missing">
        <source></source>
        <translation>No score was recorded with this session.</translation>
    </message>
    <message id="session_score_not_measured" numerus="yes">
        <source></source>
        <translation>
            <numerusform>Only %n second was measured; a score takes at least 10.</numerusform>
            <numerusform>%n seconds were measured; a score takes at least 10.</numerusform>
        </translation>
    </message>
    <message id="session_score_remainder">
        <source></source>
        <translation>Not in the record: finished tasks and subtasks, and the limits 0 and 10</translation>
    </message>
    <message id="session_score_title">
        <source></source>
        <translation>How the score came about</translation>
    </message>
    <message id="session_subtitle">
        <source></source>
        <translation>in minutes, each session in the hour it began</translation>
    </message>
    <message id="session_task_nothing_found">
        <source></source>
        <translation>No task matches.</translation>
    </message>
    <message id="session_task_search_placeholder">
        <source></source>
        <translation>Search for a task or project</translation>
    </message>
    <message id="session_task_title">
        <source></source>
        <translation>Task of the session</translation>
    </message>
    <message id="sessions_completed_subtitle">
        <source></source>
        <translation>measured during sessions</translation>
    </message>
    <message id="sheet_close_button">
        <source></source>
        <translation>Close</translation>
    </message>
    <message id="sheet_done_button">
        <source></source>
        <translation>Done</translation>
    </message>
    <message id="sidebar_agenda">
        <source></source>
        <translation>Agenda</translation>
    </message>
    <message id="sidebar_block_lists">
        <source></source>
        <translation>Block lists</translation>
    </message>
    <message id="sidebar_deep_work">
        <source></source>
        <translation>Deep Work</translation>
    </message>
    <message id="sidebar_health">
        <source></source>
        <translation>Tracking health</translation>
    </message>
    <message id="sidebar_label">
        <source></source>
        <translation>Pages</translation>
    </message>
    <message id="sidebar_projects">
        <source></source>
        <translation>Projects</translation>
    </message>
    <message id="sidebar_statistics">
        <source></source>
        <translation>Statistics</translation>
    </message>
    <message id="site_add_button">
        <source></source>
        <translation>Add</translation>
    </message>
    <message id="site_covered">
        <source></source>
        <translation>Covered by %1</translation>
    </message>
    <message id="site_entry_hint">
        <source></source>
        <translation>Not listed here yet. Enter adds it.</translation>
    </message>
    <message id="site_entry_listed_already">
        <source></source>
        <translation>Listed already: %1</translation>
    </message>
    <message id="site_entry_name">
        <source></source>
        <translation>%1: add sites, or search</translation>
    </message>
    <message id="site_entry_placeholder">
        <source></source>
        <translation>Add sites, or search</translation>
    </message>
    <message id="site_entry_refused">
        <source></source>
        <translation>Not a site: %1</translation>
    </message>
    <message id="site_move">
        <source></source>
        <translation>Move %1 to the other list</translation>
    </message>
    <message id="site_on_both_lists">
        <source></source>
        <translation>On both lists: its time is legitimate, its tab is closed</translation>
    </message>
    <message id="site_remove">
        <source></source>
        <translation>Remove %1</translation>
    </message>
    <message id="site_test_hint">
        <source></source>
        <translation>The answer names the rule that decides.</translation>
    </message>
    <message id="site_test_placeholder">
        <source></source>
        <translation>Would this site count in %1? Type or paste an address</translation>
    </message>
    <message id="sites_blocked_note">
        <source></source>
        <translation>Their tab is closed, even when they are whitelisted too.</translation>
    </message>
    <message id="sites_blocked_title">
        <source></source>
        <translation>Blocked sites</translation>
    </message>
    <message id="sites_copy_button">
        <source></source>
        <translation>Copy to others</translation>
    </message>
    <message id="sites_copy_name">
        <source></source>
        <translation>Copy the sites of %1 to the other browsers</translation>
    </message>
    <message id="sites_count" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n site</numerusform>
            <numerusform>%n sites</numerusform>
        </translation>
    </message>
    <message id="sites_empty">
        <source></source>
        <translation>No sites yet</translation>
    </message>
    <message id="sites_no_whitelist_note">
        <source></source>
        <translation>While this list is empty, every site counts as legitimate unless it is blocked.</translation>
    </message>
    <message id="sites_subtitle">
        <source></source>
        <translation>Sites count per browser. During a work phase the tab of a blocked site is closed, sub-domains included.</translation>
    </message>
    <message id="sites_tab">
        <source></source>
        <translation>Sites</translation>
    </message>
    <message id="sites_whitelist_mode_note">
        <source></source>
        <translation>Everything else counts as distracted in this browser.</translation>
    </message>
    <message id="sites_whitelisted_title">
        <source></source>
        <translation>Whitelisted sites</translation>
    </message>
    <message id="space_hint">
        <source></source>
        <translation>Space starts, pauses and resumes</translation>
    </message>
    <message id="start_button">
        <source></source>
        <translation>Start</translation>
    </message>
    <message id="stats_explain_hint">
        <source></source>
        <translation>Shows the records behind it</translation>
    </message>
    <message id="stats_export_busy_format">
        <source></source>
        <translation>Writing “%1”…</translation>
    </message>
    <message id="stats_export_button">
        <source></source>
        <translation>Export the statistics</translation>
    </message>
    <message id="stats_export_cancelled_format">
        <source></source>
        <translation>Cancelled; “%1” was not written.</translation>
    </message>
    <message id="stats_export_document">
        <source></source>
        <translation>Page as PDF…</translation>
    </message>
    <message id="stats_export_document_title">
        <source></source>
        <translation>Save the page as a PDF document</translation>
    </message>
    <message id="stats_export_done_format">
        <source></source>
        <translation>Saved: %1</translation>
    </message>
    <message id="stats_export_done_records_format">
        <source></source>
        <translation>Saved with %2: %1</translation>
    </message>
    <message id="stats_export_failed_format">
        <source></source>
        <translation>“%1” could not be written: %2</translation>
    </message>
    <message id="stats_export_json">
        <source></source>
        <translation>Everything as JSON…</translation>
    </message>
    <message id="stats_export_json_title">
        <source></source>
        <translation>Export the sessions and application use of the period</translation>
    </message>
    <message id="stats_export_no_picture">
        <source></source>
        <translation>no picture of the page could be taken.</translation>
    </message>
    <message id="stats_export_picture">
        <source></source>
        <translation>Page as picture…</translation>
    </message>
    <message id="stats_export_picture_title">
        <source></source>
        <translation>Save the page as a picture</translation>
    </message>
    <message id="stats_export_sessions">
        <source></source>
        <translation>Sessions as CSV…</translation>
    </message>
    <message id="stats_export_sessions_title">
        <source></source>
        <translation>Export the sessions of the period</translation>
    </message>
    <message id="stats_export_unsaved_format">
        <source></source>
        <translation>“%1” was not written: what was recorded last cannot be saved. %2</translation>
    </message>
    <message id="stats_export_usage">
        <source></source>
        <translation>Applications as CSV…</translation>
    </message>
    <message id="stats_export_usage_title">
        <source></source>
        <translation>Export the application use of the period</translation>
    </message>
    <message id="stats_filter_csv">
        <source></source>
        <translation>Tables</translation>
    </message>
    <message id="stats_filter_document">
        <source></source>
        <translation>PDF documents</translation>
    </message>
    <message id="stats_filter_json">
        <source></source>
        <translation>JSON files</translation>
    </message>
    <message id="stats_filter_picture">
        <source></source>
        <translation>Pictures</translation>
    </message>
    <message id="stats_introduction">
        <source></source>
        <translation>Click any figure, bar or row to see the records behind it.</translation>
    </message>
    <message id="stats_paper_date_format">
        <source></source>
        <translation>As of %1, %2</translation>
    </message>
    <message id="stats_paper_page_format">
        <source></source>
        <translation>Page %1 of %2</translation>
    </message>
    <message id="stats_paper_title">
        <source></source>
        <translation>Focus statistics</translation>
    </message>
    <message id="stats_period_label">
        <source></source>
        <translation>Period</translation>
    </message>
    <message id="stats_problem">
        <source></source>
        <translation>The records cannot be read: %1</translation>
    </message>
    <message id="stats_tabs_label">
        <source></source>
        <translation>Statistics page</translation>
    </message>
    <message id="stats_title">
        <source></source>
        <translation>Statistics</translation>
    </message>
    <message id="stats_waiting">
        <source></source>
        <translation>Reading the records</translation>
    </message>
    <message id="stop_button">
        <source></source>
        <translation>Stop</translation>
    </message>
    <message id="store_problem_banner">
        <source></source>
        <translation>Your changes cannot be saved at the moment: %1</translation>
    </message>
    <message id="subtask_add">
        <source></source>
        <translation>Add a subtask to “%1”</translation>
    </message>
    <message id="subtask_delete">
        <source></source>
        <translation>Delete %1</translation>
    </message>
    <message id="subtask_of">
        <source></source>
        <translation>Subtask of “%1”</translation>
    </message>
    <message id="subtask_placeholder">
        <source></source>
        <translation>Subtask, then Enter</translation>
    </message>
    <message id="subtask_rename">
        <source></source>
        <translation>Rename %1</translation>
    </message>
    <message id="subtasks_done">
        <source></source>
        <translation>%1/%2 subtasks</translation>
    </message>
    <message id="subtasks_keys_hint">
        <source></source>
        <translation>Space ticks · F2 renames · + adds below · Alt+↑↓ moves</translation>
    </message>
    <message id="subtasks_title">
        <source></source>
        <translation>Subtasks</translation>
    </message>
    <message id="suggestions_add_button" numerus="yes">
        <source></source>
        <translation>
            <numerusform>Add %n entry</numerusform>
            <numerusform>Add %n entries</numerusform>
        </translation>
    </message>
    <message id="suggestions_add_none_button">
        <source></source>
        <translation>Add what is chosen</translation>
    </message>
    <message id="suggestions_browsers">
        <source></source>
        <translation>Browsers</translation>
    </message>
    <message id="suggestions_dismiss_button">
        <source></source>
        <translation>Do not suggest again</translation>
    </message>
    <message id="suggestions_group_name">
        <source></source>
        <translation>%1: all for the list “%2”</translation>
    </message>
    <message id="suggestions_sites">
        <source></source>
        <translation>Sites: %1</translation>
    </message>
    <message id="suggestions_subtitle">
        <source></source>
        <translation>Nothing is on a list yet. Choose what fits your work: nothing is listed before you add it, and all of it can be changed later.</translation>
    </message>
    <message id="suggestions_tab">
        <source></source>
        <translation>Suggestions</translation>
    </message>
    <message id="summary_attempts">
        <source></source>
        <translation>Blocked attempts</translation>
    </message>
    <message id="summary_interruptions">
        <source></source>
        <translation>Interruptions</translation>
    </message>
    <message id="summary_tasks">
        <source></source>
        <translation>Finished tasks</translation>
    </message>
    <message id="tab_history">
        <source></source>
        <translation>History</translation>
    </message>
    <message id="tab_today">
        <source></source>
        <translation>Today</translation>
    </message>
    <message id="task_active_name">
        <source></source>
        <translation>%1, being worked on</translation>
    </message>
    <message id="task_clear_day">
        <source></source>
        <translation>Clear the date: %1</translation>
    </message>
    <message id="task_create_button">
        <source></source>
        <translation>Create the task</translation>
    </message>
    <message id="task_create_hint">
        <source></source>
        <translation>New task: “%1”</translation>
    </message>
    <message id="task_create_keys_hint">
        <source></source>
        <translation>Enter creates the task. Subtasks and files can be added once it is there.</translation>
    </message>
    <message id="task_delete_button">
        <source></source>
        <translation>Delete this task</translation>
    </message>
    <message id="task_description_placeholder">
        <source></source>
        <translation>Notes</translation>
    </message>
    <message id="task_detail_title">
        <source></source>
        <translation>Task</translation>
    </message>
    <message id="task_done_name">
        <source></source>
        <translation>%1, done</translation>
    </message>
    <message id="task_due_label">
        <source></source>
        <translation>Due</translation>
    </message>
    <message id="task_field_placeholder">
        <source></source>
        <translation>Type or pick a task</translation>
    </message>
    <message id="task_is_late">
        <source></source>
        <translation>late</translation>
    </message>
    <message id="task_late_mark">
        <source></source>
        <translation>Late</translation>
    </message>
    <message id="task_make_active">
        <source></source>
        <translation>Work on “%1”</translation>
    </message>
    <message id="task_menu_done">
        <source></source>
        <translation>Mark as done</translation>
    </message>
    <message id="task_move_down">
        <source></source>
        <translation>Move “%1” down</translation>
    </message>
    <message id="task_move_up">
        <source></source>
        <translation>Move “%1” up</translation>
    </message>
    <message id="task_new_title">
        <source></source>
        <translation>New task</translation>
    </message>
    <message id="task_no_day">
        <source></source>
        <translation>No date</translation>
    </message>
    <message id="task_no_phase">
        <source></source>
        <translation>No phase</translation>
    </message>
    <message id="task_no_project">
        <source></source>
        <translation>No project</translation>
    </message>
    <message id="task_open_detail">
        <source></source>
        <translation>Open the task</translation>
    </message>
    <message id="task_open_sheet">
        <source></source>
        <translation>Show and edit %1</translation>
    </message>
    <message id="task_phase_label">
        <source></source>
        <translation>Phase</translation>
    </message>
    <message id="task_planned_label">
        <source></source>
        <translation>Planned for</translation>
    </message>
    <message id="task_priority_label">
        <source></source>
        <translation>Priority</translation>
    </message>
    <message id="task_project_label">
        <source></source>
        <translation>Project</translation>
    </message>
    <message id="task_remove">
        <source></source>
        <translation>Remove “%1” from the queue</translation>
    </message>
    <message id="task_reopen">
        <source></source>
        <translation>Reopen “%1”</translation>
    </message>
    <message id="task_sessions_none">
        <source></source>
        <translation>None yet</translation>
    </message>
    <message id="task_sessions_title">
        <source></source>
        <translation>Focus sessions</translation>
    </message>
    <message id="task_sessions_total" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n session, %1</numerusform>
            <numerusform>%n sessions, %1</numerusform>
        </translation>
    </message>
    <message id="task_show_parent">
        <source></source>
        <translation>Show the task above: %1</translation>
    </message>
    <message id="task_status_done">
        <source></source>
        <translation>Done</translation>
    </message>
    <message id="task_status_done_short">
        <source></source>
        <translation>Done</translation>
    </message>
    <message id="task_status_in_progress">
        <source></source>
        <translation>In progress</translation>
    </message>
    <message id="task_status_in_progress_short">
        <source></source>
        <translation>Doing</translation>
    </message>
    <message id="task_status_label">
        <source></source>
        <translation>Status</translation>
    </message>
    <message id="task_status_todo">
        <source></source>
        <translation>To do</translation>
    </message>
    <message id="task_status_todo_short">
        <source></source>
        <translation>To do</translation>
    </message>
    <message id="task_suggestions">
        <source></source>
        <translation>Tasks to pick from</translation>
    </message>
    <message id="task_tick">
        <source></source>
        <translation>Tick off “%1”</translation>
    </message>
    <message id="task_title_placeholder">
        <source></source>
        <translation>What is to be done?</translation>
    </message>
    <message id="tasks_completed_format">
        <source></source>
        <translation>%1 of %2 done</translation>
    </message>
    <message id="tasks_count" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n task</numerusform>
            <numerusform>%n tasks</numerusform>
        </translation>
    </message>
    <message id="tasks_count_format" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n task</numerusform>
            <numerusform>%n tasks</numerusform>
        </translation>
    </message>
    <message id="tasks_title">
        <source></source>
        <translation>Tasks</translation>
    </message>
    <message id="tasks_today" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n task today</numerusform>
            <numerusform>%n tasks today</numerusform>
        </translation>
    </message>
    <message id="tick_sounds_button_off">
        <source></source>
        <translation>Tick sounds: off (Ctrl+T)</translation>
    </message>
    <message id="tick_sounds_button_on">
        <source></source>
        <translation>Tick sounds: on (Ctrl+T)</translation>
    </message>
    <message id="tick_sounds_done_button">
        <source></source>
        <translation>Done</translation>
    </message>
    <message id="tick_sounds_sample_button">
        <source></source>
        <translation>Play a sample</translation>
    </message>
    <message id="tick_sounds_subtitle">
        <source></source>
        <translation>One tick a second while a session runs</translation>
    </message>
    <message id="tick_sounds_switch">
        <source></source>
        <translation>Tick while a session runs</translation>
    </message>
    <message id="tick_sounds_title">
        <source></source>
        <translation>Tick sounds</translation>
    </message>
    <message id="tick_sounds_type_label">
        <source></source>
        <translation>Character</translation>
    </message>
    <message id="tick_sounds_volume">
        <source></source>
        <translation>Volume</translation>
    </message>
    <message id="tick_sounds_volume_value">
        <source></source>
        <translation>%1%</translation>
    </message>
    <message id="tick_type_clock">
        <source></source>
        <translation>Clock</translation>
    </message>
    <message id="tick_type_clock_hint">
        <source></source>
        <translation>Tick and tock in turn</translation>
    </message>
    <message id="tick_type_digital">
        <source></source>
        <translation>Digital</translation>
    </message>
    <message id="tick_type_digital_hint">
        <source></source>
        <translation>Short and even</translation>
    </message>
    <message id="tick_type_metronome">
        <source></source>
        <translation>Metronome</translation>
    </message>
    <message id="tick_type_metronome_hint">
        <source></source>
        <translation>Crisp, high and low in turn</translation>
    </message>
    <message id="tick_type_soft">
        <source></source>
        <translation>Soft</translation>
    </message>
    <message id="tick_type_soft_hint">
        <source></source>
        <translation>Low and rounded</translation>
    </message>
    <message id="time_hours_minutes_short">
        <source></source>
        <translation>%1 h %2 min</translation>
    </message>
    <message id="time_hours_short">
        <source></source>
        <translation>%1 h</translation>
    </message>
    <message id="time_minutes_short">
        <source></source>
        <translation>%1 min</translation>
    </message>
    <message id="time_seconds_short">
        <source></source>
        <translation>%1 s</translation>
    </message>
    <message id="timeline_focus_title">
        <source></source>
        <translation>Focus through the day</translation>
    </message>
    <message id="today">
        <source></source>
        <translation>Today</translation>
    </message>
    <message id="today_sessions_title">
        <source></source>
        <translation>Today’s sessions</translation>
    </message>
    <message id="today_short">
        <source></source>
        <translation>Today</translation>
    </message>
    <message id="tomorrow">
        <source></source>
        <translation>Tomorrow</translation>
    </message>
    <message id="tray_paused">
        <source></source>
        <translation>Paused with %1 left</translation>
    </message>
    <message id="tray_show_window">
        <source></source>
        <translation>Show the window</translation>
    </message>
    <message id="tray_time_left" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n minute left, until %1</numerusform>
            <numerusform>%n minutes left, until %1</numerusform>
        </translation>
    </message>
    <message id="undo_button">
        <source></source>
        <translation>Undo</translation>
    </message>
    <message id="undo_completed_format">
        <source></source>
        <translation>“%1” is done</translation>
    </message>
    <message id="undo_deleted_format">
        <source></source>
        <translation>“%1” was deleted</translation>
    </message>
    <message id="undo_imported_format">
        <source></source>
        <translation>“%1” was imported</translation>
    </message>
    <message id="undo_phases_deleted" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n phase was deleted</numerusform>
            <numerusform>%n phases were deleted</numerusform>
        </translation>
    </message>
    <message id="undo_planned_format" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n task was planned · %1</numerusform>
            <numerusform>%n tasks were planned · %1</numerusform>
        </translation>
    </message>
    <message id="undo_session_deleted_format">
        <source></source>
        <translation>The session of %1 was deleted</translation>
    </message>
    <message id="undo_session_no_task">
        <source></source>
        <translation>The session now counts for no task</translation>
    </message>
    <message id="undo_session_task_format">
        <source></source>
        <translation>The session now counts for “%1”</translation>
    </message>
    <message id="undo_unscheduled_format">
        <source></source>
        <translation>“%1” was taken off the agenda</translation>
    </message>
    <message id="unschedule_button">
        <source></source>
        <translation>Take off</translation>
    </message>
    <message id="unschedule_task">
        <source></source>
        <translation>Take off the agenda</translation>
    </message>
    <message id="update_available">
        <source></source>
        <translation>An update of Norvin Focus is available.</translation>
    </message>
    <message id="update_available_version">
        <source></source>
        <translation>Norvin Focus %1 is available.</translation>
    </message>
    <message id="update_checking">
        <source></source>
        <translation>Looking for updates…</translation>
    </message>
    <message id="update_explanation">
        <source></source>
        <translation>The software service of your computer is asked, and only when you ask it. Norvin Focus itself downloads nothing.</translation>
    </message>
    <message id="update_failed">
        <source></source>
        <translation>The look for updates failed: %1</translation>
    </message>
    <message id="update_installed">
        <source></source>
        <translation>An update is in place. It is used the next time you start Norvin Focus.</translation>
    </message>
    <message id="update_no_packagekit">
        <source></source>
        <translation>The software service PackageKit is not there.</translation>
    </message>
    <message id="update_no_packagekit_remedy">
        <source></source>
        <translation>Install the package packagekit, or update Norvin Focus with the tool that installed it.</translation>
    </message>
    <message id="update_none_announced">
        <source></source>
        <translation>No update has been announced. If one is while Norvin Focus runs, you will read it here.</translation>
    </message>
    <message id="update_not_checked">
        <source></source>
        <translation>No look for updates since the start.</translation>
    </message>
    <message id="update_open_centre_button">
        <source></source>
        <translation>Open software centre</translation>
    </message>
    <message id="update_portal_missing">
        <source></source>
        <translation>The Flatpak portal of this desktop does not answer.</translation>
    </message>
    <message id="update_source_build">
        <source></source>
        <translation>This Norvin Focus does not come from a package.</translation>
    </message>
    <message id="update_source_build_remedy">
        <source></source>
        <translation>Update it where you got it from. Installed from a package or a Flatpak, it looks for updates here.</translation>
    </message>
    <message id="update_timed_out">
        <source></source>
        <translation>The software service of this computer did not answer in time. Try again in a few minutes.</translation>
    </message>
    <message id="update_unknown_package">
        <source></source>
        <translation>The software sources of this computer do not know Norvin Focus.</translation>
    </message>
    <message id="update_up_to_date">
        <source></source>
        <translation>Norvin Focus is up to date.</translation>
    </message>
    <message id="update_version">
        <source></source>
        <translation>Norvin Focus %1</translation>
    </message>
    <message id="verdict_blocked">
        <source></source>
        <translation>Matches “%1” on the blocked list. The tab is closed.</translation>
    </message>
    <message id="verdict_blocked_and_whitelisted">
        <source></source>
        <translation>Matches “%1” on the blocked list: the tab is closed. Until then its time is legitimate, since “%2” is on the whitelist.</translation>
    </message>
    <message id="verdict_blocked_word">
        <source></source>
        <translation>Blocked</translation>
    </message>
    <message id="verdict_browser_blocked">
        <source></source>
        <translation>%1 itself is blocked: it is hidden before any page counts.</translation>
    </message>
    <message id="verdict_browser_not_whitelisted">
        <source></source>
        <translation>%1 is not on the whitelist of applications: all its time is distracted, whatever the page.</translation>
    </message>
    <message id="verdict_distracted_word">
        <source></source>
        <translation>Distracted</translation>
    </message>
    <message id="verdict_legitimate_word">
        <source></source>
        <translation>Legitimate</translation>
    </message>
    <message id="verdict_no_lists">
        <source></source>
        <translation>Both lists are empty: every site counts as legitimate.</translation>
    </message>
    <message id="verdict_not_blocked">
        <source></source>
        <translation>Nothing on the blocked list matches, and there is no whitelist.</translation>
    </message>
    <message id="verdict_not_whitelisted">
        <source></source>
        <translation>This browser has a whitelist, and nothing on it matches.</translation>
    </message>
    <message id="verdict_unreadable">
        <source></source>
        <translation>No site can be made out in this text.</translation>
    </message>
    <message id="verdict_whitelisted">
        <source></source>
        <translation>Matches “%1” on the whitelist.</translation>
    </message>
    <message id="welcome_again_button">
        <source></source>
        <translation>Show it again</translation>
    </message>
    <message id="welcome_again_hint">
        <source></source>
        <translation>Language, what is watched, suggested lists, and a first task.</translation>
    </message>
    <message id="welcome_again_label">
        <source></source>
        <translation>Welcome</translation>
    </message>
    <message id="welcome_back_button">
        <source></source>
        <translation>Back</translation>
    </message>
    <message id="welcome_later_button">
        <source></source>
        <translation>Not now</translation>
    </message>
    <message id="welcome_leave_button">
        <source></source>
        <translation>Leave the welcome</translation>
    </message>
    <message id="welcome_lists_empty_subtitle">
        <source></source>
        <translation>No installed application is clearly for work or for leisure. The block lists are yours to fill.</translation>
    </message>
    <message id="welcome_lists_empty_title">
        <source></source>
        <translation>Nothing to suggest</translation>
    </message>
    <message id="welcome_lists_subtitle">
        <source></source>
        <translation>From what is installed here. Allowed applications count as focus, blocked ones are hidden while you work. You can change it all later.</translation>
    </message>
    <message id="welcome_lists_title">
        <source></source>
        <translation>What belongs to your work</translation>
    </message>
    <message id="welcome_next_button">
        <source></source>
        <translation>Next</translation>
    </message>
    <message id="welcome_pages_allow_button">
        <source></source>
        <translation>Allow it</translation>
    </message>
    <message id="welcome_pages_missing">
        <source></source>
        <translation>This desktop has no accessibility services. An extension for your browser does the same; it is offered under “Tracking health”.</translation>
    </message>
    <message id="welcome_pages_off">
        <source></source>
        <translation>These services are switched off. Allowing them counts for all programs of your desktop, and can be taken back under “Tracking health”.</translation>
    </message>
    <message id="welcome_pages_on">
        <source></source>
        <translation>These services are switched on. Browsers that you list can be told apart by their pages.</translation>
    </message>
    <message id="welcome_pages_subtitle">
        <source></source>
        <translation>To tell one site from another, Norvin Focus reads the address bar through the accessibility services of your desktop, the way a screen reader would.</translation>
    </message>
    <message id="welcome_pages_title">
        <source></source>
        <translation>Pages in browsers</translation>
    </message>
    <message id="welcome_skip_button">
        <source></source>
        <translation>Skip</translation>
    </message>
    <message id="welcome_start_button">
        <source></source>
        <translation>Start working</translation>
    </message>
    <message id="welcome_step">
        <source></source>
        <translation>Step %1 of %2</translation>
    </message>
    <message id="welcome_subtitle">
        <source></source>
        <translation>One thing at a time, for as long as you decide. Norvin Focus keeps your tasks, times your work and tells you honestly how focused it was.</translation>
    </message>
    <message id="welcome_task_palette">
        <source></source>
        <translation>Ctrl+K leads to everything: pages, tasks, projects and actions.</translation>
    </message>
    <message id="welcome_task_placeholder">
        <source></source>
        <translation>The first task</translation>
    </message>
    <message id="welcome_task_subtitle">
        <source></source>
        <translation>One task is enough to begin. It waits in the queue if you would rather look around first.</translation>
    </message>
    <message id="welcome_task_title">
        <source></source>
        <translation>What will you work on?</translation>
    </message>
    <message id="welcome_title">
        <source></source>
        <translation>Welcome to Norvin Focus</translation>
    </message>
    <message id="welcome_watching_applications">
        <source></source>
        <translation>Which application is in front, to count every second as focused or distracted.</translation>
    </message>
    <message id="welcome_watching_input">
        <source></source>
        <translation>How long keyboard and mouse have been still. Never what you type.</translation>
    </message>
    <message id="welcome_watching_kept">
        <source></source>
        <translation>All of it stays on this computer, in %1. Nothing is sent anywhere.</translation>
    </message>
    <message id="welcome_watching_pages">
        <source></source>
        <translation>In browsers that you list, the domain of the page in front. Never what the page says.</translation>
    </message>
    <message id="welcome_watching_subtitle">
        <source></source>
        <translation>Only while a work phase runs. In breaks, and while nothing runs, nothing is looked at.</translation>
    </message>
    <message id="welcome_watching_title">
        <source></source>
        <translation>What is watched</translation>
    </message>
    <message id="whitelisted_count" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n whitelisted</numerusform>
            <numerusform>%n whitelisted</numerusform>
        </translation>
    </message>
    <message id="window_closed_running_body">
        <source></source>
        <translation>The window is closed, the timer is not. Start Norvin Focus again to see it.</translation>
    </message>
    <message id="window_closed_running_title">
        <source></source>
        <translation>The session goes on</translation>
    </message>
    <message id="window_menu">
        <source></source>
        <translation>Menu</translation>
    </message>
</context>
</TS>
