<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr_FR" sourcelanguage="en">
<context>
    <name></name>
    <message id="accessibility_turn_off_button">
        <source></source>
        <translation>Désactiver</translation>
    </message>
    <message id="accessibility_turn_on_button">
        <source></source>
        <translation>Activer</translation>
    </message>
    <message id="accessibility_turned_on">
        <source></source>
        <translation>L’accessibilité est active. Un navigateur déjà ouvert doit peut-être être fermé puis rouvert une fois.</translation>
    </message>
    <message id="action_new_project">
        <source></source>
        <translation>Nouveau projet</translation>
    </message>
    <message id="action_new_task">
        <source></source>
        <translation>Nouvelle tâche</translation>
    </message>
    <message id="action_pause">
        <source></source>
        <translation>Suspendre la session</translation>
    </message>
    <message id="action_resume">
        <source></source>
        <translation>Reprendre la session</translation>
    </message>
    <message id="action_send_feedback">
        <source></source>
        <translation>Proposer une amélioration…</translation>
    </message>
    <message id="action_show_panel">
        <source></source>
        <translation>Ouvrir le panneau du minuteur</translation>
    </message>
    <message id="action_show_welcome">
        <source></source>
        <translation>Revoir l’accueil</translation>
    </message>
    <message id="action_start_break">
        <source></source>
        <translation>Démarrer une pause</translation>
    </message>
    <message id="action_start_rearming">
        <source></source>
        <translation>Démarrer un réarmement</translation>
    </message>
    <message id="action_start_work">
        <source></source>
        <translation>Démarrer une phase de travail</translation>
    </message>
    <message id="action_stop">
        <source></source>
        <translation>Arrêter la session</translation>
    </message>
    <message id="action_toggle_floating_timer">
        <source></source>
        <translation>Afficher ou masquer le minuteur flottant</translation>
    </message>
    <message id="active_task_next">
        <source></source>
        <translation>Pour commencer : %1</translation>
    </message>
    <message id="active_task_none_idle">
        <source></source>
        <translation>Aucune tâche choisie. Une session marche aussi sans.</translation>
    </message>
    <message id="activity_distracted">
        <source></source>
        <translation>Distrait</translation>
    </message>
    <message id="activity_idle_subtitle">
        <source></source>
        <translation>Rien n’est compté tant qu’aucune n’y est.</translation>
    </message>
    <message id="activity_idle_title">
        <source></source>
        <translation>Aucune application au premier plan</translation>
    </message>
    <message id="activity_label">
        <source></source>
        <translation>Activité actuelle</translation>
    </message>
    <message id="activity_legitimate">
        <source></source>
        <translation>Légitime</translation>
    </message>
    <message id="activity_paused_subtitle">
        <source></source>
        <translation>Rien n’est mesuré ni bloqué jusqu’à la reprise.</translation>
    </message>
    <message id="activity_paused_title">
        <source></source>
        <translation>En pause</translation>
    </message>
    <message id="activity_unmeasured_subtitle">
        <source></source>
        <translation>Après une pause, les temps mesurés restent tels quels jusqu’à la prochaine session. Le blocage continue.</translation>
    </message>
    <message id="activity_unmeasured_title">
        <source></source>
        <translation>L’activité n’est plus mesurée</translation>
    </message>
    <message id="add_button">
        <source></source>
        <translation>Ajouter une tâche</translation>
    </message>
    <message id="add_task">
        <source></source>
        <translation>Nouvelle tâche</translation>
    </message>
    <message id="add_to_my_agenda">
        <source></source>
        <translation>Ajouter à mon agenda</translation>
    </message>
    <message id="agenda_date_format">
        <source></source>
        <translation>%1 %2 %3</translation>
    </message>
    <message id="agenda_date_year_format">
        <source></source>
        <translation>%1 %2</translation>
    </message>
    <message id="agenda_keys_hint">
        <source></source>
        <translation>Entrée : ouvrir · Espace : terminer · Suppr : retirer de l’agenda</translation>
    </message>
    <message id="agenda_row_name">
        <source></source>
        <translation>%1. %2</translation>
    </message>
    <message id="alert_non_legitimate_site">
        <source></source>
        <translation>Ce site ne fait pas partie de votre session</translation>
    </message>
    <message id="alert_stay_focused">
        <source></source>
        <translation>Gardez le cap</translation>
    </message>
    <message id="ambience_air_tones">
        <source></source>
        <translation>Souffles accordés</translation>
    </message>
    <message id="ambience_brown_noise">
        <source></source>
        <translation>Bruit brun</translation>
    </message>
    <message id="ambience_button">
        <source></source>
        <translation>Son d’ambiance : %1 (Ctrl+M)</translation>
    </message>
    <message id="ambience_category_focus">
        <source></source>
        <translation>Concentration</translation>
    </message>
    <message id="ambience_category_label">
        <source></source>
        <translation>Type de son</translation>
    </message>
    <message id="ambience_category_nature">
        <source></source>
        <translation>Nature</translation>
    </message>
    <message id="ambience_category_noise">
        <source></source>
        <translation>Bruit</translation>
    </message>
    <message id="ambience_fan">
        <source></source>
        <translation>Ventilateur</translation>
    </message>
    <message id="ambience_fire">
        <source></source>
        <translation>Feu de bois</translation>
    </message>
    <message id="ambience_grey_noise">
        <source></source>
        <translation>Bruit gris</translation>
    </message>
    <message id="ambience_low_drone">
        <source></source>
        <translation>Bourdon grave</translation>
    </message>
    <message id="ambience_none">
        <source></source>
        <translation>Aucun son</translation>
    </message>
    <message id="ambience_pink_noise">
        <source></source>
        <translation>Bruit rose</translation>
    </message>
    <message id="ambience_play_button">
        <source></source>
        <translation>Écouter</translation>
    </message>
    <message id="ambience_rain">
        <source></source>
        <translation>Pluie</translation>
    </message>
    <message id="ambience_singing_bowls">
        <source></source>
        <translation>Bols chantants</translation>
    </message>
    <message id="ambience_soft_pads">
        <source></source>
        <translation>Nappes douces</translation>
    </message>
    <message id="ambience_stop_button">
        <source></source>
        <translation>Arrêter l’écoute</translation>
    </message>
    <message id="ambience_stream">
        <source></source>
        <translation>Ruisseau</translation>
    </message>
    <message id="ambience_subtitle">
        <source></source>
        <translation>Monte avec la phase de travail, se tait pendant les pauses</translation>
    </message>
    <message id="ambience_title">
        <source></source>
        <translation>Son d’ambiance</translation>
    </message>
    <message id="ambience_volume">
        <source></source>
        <translation>Volume du son d’ambiance</translation>
    </message>
    <message id="ambience_waves">
        <source></source>
        <translation>Vagues</translation>
    </message>
    <message id="ambience_white_noise">
        <source></source>
        <translation>Bruit blanc</translation>
    </message>
    <message id="ambience_wind">
        <source></source>
        <translation>Vent</translation>
    </message>
    <message id="another_work_button">
        <source></source>
        <translation>Nouvelle phase</translation>
    </message>
    <message id="application_running">
        <source></source>
        <translation>ouverte</translation>
    </message>
    <message id="application_running_name">
        <source></source>
        <translation>%1, ouverte</translation>
    </message>
    <message id="application_search_placeholder">
        <source></source>
        <translation>Chercher par nom ou identifiant</translation>
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
        <translation>Aucune application installée n’a été trouvée.</translation>
    </message>
    <message id="applications_empty_title">
        <source></source>
        <translation>Aucune application à afficher</translation>
    </message>
    <message id="applications_no_match_subtitle">
        <source></source>
        <translation>Rien ne correspond à cette recherche. Échap l’efface.</translation>
    </message>
    <message id="applications_tab">
        <source></source>
        <translation>Applications</translation>
    </message>
    <message id="apps_used_title">
        <source></source>
        <translation>Applications utilisées</translation>
    </message>
    <message id="attach_not_opened">
        <source></source>
        <translation>Aucune application du bureau n’ouvre ce fichier.</translation>
    </message>
    <message id="attach_refused_again">
        <source></source>
        <translation>Un fichier déjà joint a été laissé de côté.</translation>
    </message>
    <message id="attach_refused_missing">
        <source></source>
        <translation>Un fichier qui n’existe pas ne peut pas être joint.</translation>
    </message>
    <message id="attach_refused_not_local">
        <source></source>
        <translation>Seuls des fichiers de cet ordinateur peuvent être joints.</translation>
    </message>
    <message id="autostart_hint">
        <source></source>
        <translation>Sans fenêtre, prêt pour la première session.</translation>
    </message>
    <message id="autostart_label">
        <source></source>
        <translation>Démarrer à l’ouverture de session</translation>
    </message>
    <message id="autostart_no_portal">
        <source></source>
        <translation>Ce bureau ne laisse pas les programmes isolés démarrer à l’ouverture de session.</translation>
    </message>
    <message id="autostart_no_portal_remedy">
        <source></source>
        <translation>Installez xdg-desktop-portal et la partie qui correspond à votre bureau.</translation>
    </message>
    <message id="autostart_reason">
        <source></source>
        <translation>Norvin Focus veut être prêt quand vous ouvrez votre session.</translation>
    </message>
    <message id="autostart_unwritable">
        <source></source>
        <translation>L’entrée de démarrage à l’ouverture de session ne peut pas être écrite.</translation>
    </message>
    <message id="autostart_unwritable_remedy">
        <source></source>
        <translation>Vérifiez que vous avez le droit d’écrire dans le dossier « autostart » de vos réglages.</translation>
    </message>
    <message id="backup_contents_empty">
        <source></source>
        <translation>vide</translation>
    </message>
    <message id="backup_date_pattern">
        <source></source>
        <translation>d MMMM yyyy</translation>
    </message>
    <message id="backup_kind_before_restore">
        <source></source>
        <translation>avant une restauration</translation>
    </message>
    <message id="backup_kind_daily">
        <source></source>
        <translation>quotidienne</translation>
    </message>
    <message id="backup_kind_manual">
        <source></source>
        <translation>faite par vous</translation>
    </message>
    <message id="backup_now_button">
        <source></source>
        <translation>Sauvegarder</translation>
    </message>
    <message id="backup_unreadable">
        <source></source>
        <translation>Ce fichier est endommagé et ne peut pas être restauré.</translation>
    </message>
    <message id="backup_when">
        <source></source>
        <translation>%1, %2</translation>
    </message>
    <message id="backups_text">
        <source></source>
        <translation>Tant que le programme tourne, il fait une copie par jour et la garde 14 jours. Les copies que vous faites vous-même restent jusqu’à ce que vous les supprimiez.</translation>
    </message>
    <message id="backups_title">
        <source></source>
        <translation>Sauvegardes</translation>
    </message>
    <message id="balance_label">
        <source></source>
        <translation>Temps mesuré</translation>
    </message>
    <message id="block_lists_subtitle">
        <source></source>
        <translation>Les applications bloquées sont masquées pendant une phase de travail. Le temps passé dans celles de la liste blanche compte comme légitime ; tout le reste compte comme distrait.</translation>
    </message>
    <message id="block_lists_title">
        <source></source>
        <translation>Listes de blocage</translation>
    </message>
    <message id="blocked_count" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n bloquée</numerusform>
            <numerusform>%n bloquées</numerusform>
        </translation>
    </message>
    <message id="board_back_button">
        <source></source>
        <translation>Tous les projets</translation>
    </message>
    <message id="board_column_name">
        <source></source>
        <translation>%1, %2</translation>
    </message>
    <message id="board_new_task_name">
        <source></source>
        <translation>Nouvelle tâche, %1</translation>
    </message>
    <message id="board_new_task_placeholder">
        <source></source>
        <translation>Que faut-il faire ?</translation>
    </message>
    <message id="board_tabs_name">
        <source></source>
        <translation>Phases</translation>
    </message>
    <message id="break_button">
        <source></source>
        <translation>Faire une pause</translation>
    </message>
    <message id="break_subtitle">
        <source></source>
        <translation>Rien n’est mesuré ni bloqué pendant une pause. Levez les yeux, bougez, buvez un verre d’eau.</translation>
    </message>
    <message id="browser_blocked_note">
        <source></source>
        <translation>%1 est une application bloquée : il est masqué, donc ses pages ne comptent jamais.</translation>
    </message>
    <message id="browser_not_whitelisted_note">
        <source></source>
        <translation>%1 n’est pas sur la liste blanche des applications, donc ses pages ne sont jamais regardées : tout son temps compte comme distrait.</translation>
    </message>
    <message id="browser_restart_button">
        <source></source>
        <translation>Redémarrer %1</translation>
    </message>
    <message id="browser_restart_cancel_button">
        <source></source>
        <translation>Annuler</translation>
    </message>
    <message id="browser_restart_message">
        <source></source>
        <translation>%1 sera fermé puis rouvert. Le texte que vous avez saisi dans des pages sans l’envoyer peut être perdu, et les téléchargements en cours s’arrêtent. %1 rétablit ses onglets ou vous le propose ; les fenêtres privées ne reviennent pas.</translation>
    </message>
    <message id="browser_restart_not_closed">
        <source></source>
        <translation>%1 ne s’est pas fermé. Rien n’a été forcé : fermez-le vous-même, puis rouvrez-le.</translation>
    </message>
    <message id="browser_restart_not_opened">
        <source></source>
        <translation>%1 a été fermé mais n’a pas pu être rouvert. Veuillez l’ouvrir vous-même.</translation>
    </message>
    <message id="browser_restart_title">
        <source></source>
        <translation>Redémarrer %1 ?</translation>
    </message>
    <message id="browser_restart_under_way">
        <source></source>
        <translation>%1 est en cours de fermeture et sera rouvert.</translation>
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
        <translation>L’y mettre</translation>
    </message>
    <message id="browsers_all_button">
        <source></source>
        <translation>Tout afficher</translation>
    </message>
    <message id="browsers_fewer_button">
        <source></source>
        <translation>Afficher moins</translation>
    </message>
    <message id="by_category">
        <source></source>
        <translation>Par catégorie</translation>
    </message>
    <message id="calendar_day_name" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%1, %n tâche</numerusform>
            <numerusform>%1, %n tâches</numerusform>
        </translation>
    </message>
    <message id="calendar_month_format">
        <source></source>
        <translation>%1 %2</translation>
    </message>
    <message id="calendar_next_month">
        <source></source>
        <translation>Mois suivant</translation>
    </message>
    <message id="calendar_next_year">
        <source></source>
        <translation>Année suivante</translation>
    </message>
    <message id="calendar_open">
        <source></source>
        <translation>Calendrier</translation>
    </message>
    <message id="calendar_previous_month">
        <source></source>
        <translation>Mois précédent</translation>
    </message>
    <message id="calendar_previous_year">
        <source></source>
        <translation>Année précédente</translation>
    </message>
    <message id="cancel_button">
        <source></source>
        <translation>Annuler</translation>
    </message>
    <message id="card_delete_button">
        <source></source>
        <translation>Supprimer</translation>
    </message>
    <message id="card_due_name">
        <source></source>
        <translation>échéance : %1</translation>
    </message>
    <message id="card_late_name">
        <source></source>
        <translation>%1, en retard</translation>
    </message>
    <message id="card_more_button">
        <source></source>
        <translation>Que faire de « %1 »</translation>
    </message>
    <message id="card_move_format">
        <source></source>
        <translation>Déplacer vers « %1 »</translation>
    </message>
    <message id="card_open_button">
        <source></source>
        <translation>Ouvrir</translation>
    </message>
    <message id="card_plan_button">
        <source></source>
        <translation>Planifier</translation>
    </message>
    <message id="card_planned_name">
        <source></source>
        <translation>prévue : %1</translation>
    </message>
    <message id="card_priority_name">
        <source></source>
        <translation>priorité : %1</translation>
    </message>
    <message id="category_communication">
        <source></source>
        <translation>Communication</translation>
    </message>
    <message id="category_design">
        <source></source>
        <translation>Création</translation>
    </message>
    <message id="category_development">
        <source></source>
        <translation>Développement</translation>
    </message>
    <message id="category_entertainment">
        <source></source>
        <translation>Divertissement</translation>
    </message>
    <message id="category_navigation">
        <source></source>
        <translation>Navigation</translation>
    </message>
    <message id="category_other">
        <source></source>
        <translation>Autre</translation>
    </message>
    <message id="category_productivity">
        <source></source>
        <translation>Productivité</translation>
    </message>
    <message id="category_social">
        <source></source>
        <translation>Réseaux sociaux</translation>
    </message>
    <message id="category_system">
        <source></source>
        <translation>Système</translation>
    </message>
    <message id="chart_category">
        <source></source>
        <translation>Catégorie</translation>
    </message>
    <message id="chart_date">
        <source></source>
        <translation>Date</translation>
    </message>
    <message id="chart_duration">
        <source></source>
        <translation>Durée</translation>
    </message>
    <message id="chart_hour">
        <source></source>
        <translation>Heure</translation>
    </message>
    <message id="chart_minutes">
        <source></source>
        <translation>Temps de concentration</translation>
    </message>
    <message id="chart_share">
        <source></source>
        <translation>%1 %</translation>
    </message>
    <message id="chart_share_small">
        <source></source>
        <translation>&lt; %1 %</translation>
    </message>
    <message id="chart_threshold">
        <source></source>
        <translation>Seuil</translation>
    </message>
    <message id="chart_time">
        <source></source>
        <translation>Heure</translation>
    </message>
    <message id="chart_value_format">
        <source></source>
        <translation>%1 : %2</translation>
    </message>
    <message id="check_for_updates">
        <source></source>
        <translation>Rechercher des mises à jour…</translation>
    </message>
    <message id="chip_ambiguous">
        <source></source>
        <translation>« %1 » convient à plusieurs noms</translation>
    </message>
    <message id="chip_due">
        <source></source>
        <translation>Échéance : %1</translation>
    </message>
    <message id="chip_phase_without_project">
        <source></source>
        <translation>« %1 » : une phase demande un projet</translation>
    </message>
    <message id="chip_planned">
        <source></source>
        <translation>Prévue : %1</translation>
    </message>
    <message id="chip_priority">
        <source></source>
        <translation>Priorité : %1</translation>
    </message>
    <message id="chip_remove">
        <source></source>
        <translation>Remettre dans le titre : %1</translation>
    </message>
    <message id="chip_unknown_phase">
        <source></source>
        <translation>Pas de phase « %1 »</translation>
    </message>
    <message id="chip_unknown_project">
        <source></source>
        <translation>Pas de projet « %1 »</translation>
    </message>
    <message id="choice_all_projects">
        <source></source>
        <translation>Tous les projets</translation>
    </message>
    <message id="clean_state_title">
        <source></source>
        <translation>Rien d’enregistré</translation>
    </message>
    <message id="coach_dismiss_button">
        <source></source>
        <translation>Masquer le message</translation>
    </message>
    <message id="coach_distraction_1">
        <source></source>
        <translation>%1 peut attendre. D’abord encore un petit pas.</translation>
    </message>
    <message id="coach_distraction_2">
        <source></source>
        <translation>%1, par habitude ? Respirez un instant, puis reprenez.</translation>
    </message>
    <message id="coach_distraction_3">
        <source></source>
        <translation>%1 sera encore là plus tard. Votre tâche d’abord.</translation>
    </message>
    <message id="coach_interrupt_abandoned">
        <source></source>
        <translation>Ce n’est que partie remise. Recommencez quand vous voulez.</translation>
    </message>
    <message id="coach_interrupt_inactivity">
        <source></source>
        <translation>Rien ne bouge depuis un moment. Reprenez quand vous voulez.</translation>
    </message>
    <message id="coach_interrupt_pause">
        <source></source>
        <translation>En pause. Soufflez un peu, puis reprenez le fil.</translation>
    </message>
    <message id="color_amber">
        <source></source>
        <translation>Ambre</translation>
    </message>
    <message id="color_blue">
        <source></source>
        <translation>Bleu</translation>
    </message>
    <message id="color_cyan">
        <source></source>
        <translation>Cyan</translation>
    </message>
    <message id="color_deep_violet">
        <source></source>
        <translation>Violet profond</translation>
    </message>
    <message id="color_green">
        <source></source>
        <translation>Vert</translation>
    </message>
    <message id="color_indigo">
        <source></source>
        <translation>Indigo</translation>
    </message>
    <message id="color_lavender">
        <source></source>
        <translation>Lavande</translation>
    </message>
    <message id="color_orange">
        <source></source>
        <translation>Orange</translation>
    </message>
    <message id="color_pink">
        <source></source>
        <translation>Rose</translation>
    </message>
    <message id="color_red">
        <source></source>
        <translation>Rouge</translation>
    </message>
    <message id="color_teal">
        <source></source>
        <translation>Bleu canard</translation>
    </message>
    <message id="color_violet">
        <source></source>
        <translation>Violet</translation>
    </message>
    <message id="completed_break_title">
        <source></source>
        <translation>Pause terminée</translation>
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
        <translation>Les phases de moins de dix secondes ne sont pas enregistrées.</translation>
    </message>
    <message id="completed_rearming_title">
        <source></source>
        <translation>Réarmement terminé</translation>
    </message>
    <message id="completed_work_title">
        <source></source>
        <translation>Phase de travail terminée</translation>
    </message>
    <message id="confirm_delete_phase_title">
        <source></source>
        <translation>Supprimer la phase « %1 » ?</translation>
    </message>
    <message id="confirm_delete_project_message">
        <source></source>
        <translation>Vous avez dix secondes pour revenir en arrière.</translation>
    </message>
    <message id="confirm_delete_project_title">
        <source></source>
        <translation>Supprimer « %1 » ?</translation>
    </message>
    <message id="confirm_delete_task_message">
        <source></source>
        <translation>La tâche disparaît de son projet, de l’agenda et de la file.</translation>
    </message>
    <message id="confirm_delete_task_title">
        <source></source>
        <translation>Supprimer cette tâche ?</translation>
    </message>
    <message id="confirm_unschedule_task_message">
        <source></source>
        <translation>Une tâche d’un projet y reste, sans ses dates. Une tâche sans projet est supprimée.</translation>
    </message>
    <message id="confirm_unschedule_task_title">
        <source></source>
        <translation>Retirer cette tâche de l’agenda ?</translation>
    </message>
    <message id="count_files" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n fichier joint</numerusform>
            <numerusform>%n fichiers joints</numerusform>
        </translation>
    </message>
    <message id="count_intervals" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n intervalle d’usage</numerusform>
            <numerusform>%n intervalles d’usage</numerusform>
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
            <numerusform>%n projet</numerusform>
            <numerusform>%n projets</numerusform>
        </translation>
    </message>
    <message id="count_sessions" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n session enregistrée</numerusform>
            <numerusform>%n sessions enregistrées</numerusform>
        </translation>
    </message>
    <message id="count_subtasks" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n sous-tâche</numerusform>
            <numerusform>%n sous-tâches</numerusform>
        </translation>
    </message>
    <message id="count_tasks" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n tâche</numerusform>
            <numerusform>%n tâches</numerusform>
        </translation>
    </message>
    <message id="create_project_action">
        <source></source>
        <translation>Créer le projet</translation>
    </message>
    <message id="create_project_title">
        <source></source>
        <translation>Nouveau projet</translation>
    </message>
    <message id="daily_agenda">
        <source></source>
        <translation>Agenda du jour</translation>
    </message>
    <message id="daily_distribution_subtitle">
        <source></source>
        <translation>Répartition de la journée</translation>
    </message>
    <message id="daily_objectives">
        <source></source>
        <translation>Objectifs du jour</translation>
    </message>
    <message id="data_backing_up">
        <source></source>
        <translation>Copie et vérification de la sauvegarde…</translation>
    </message>
    <message id="data_backup_failed">
        <source></source>
        <translation>La sauvegarde n’a pas pu être faite, et rien n’a changé. %1</translation>
    </message>
    <message id="data_backup_made">
        <source></source>
        <translation>La sauvegarde est faite et vérifiée : %1</translation>
    </message>
    <message id="data_busy">
        <source></source>
        <translation>Une autre copie est en cours. Réessayez dans un moment.</translation>
    </message>
    <message id="data_daily_failed">
        <source></source>
        <translation>La sauvegarde du jour n’a pas pu être faite ; nouvel essai dans une heure. %1</translation>
    </message>
    <message id="data_erase_failed">
        <source></source>
        <translation>Rien n’a été effacé. %1</translation>
    </message>
    <message id="data_erased">
        <source></source>
        <translation>Tout a été effacé.</translation>
    </message>
    <message id="data_last_backup">
        <source></source>
        <translation>Dernière sauvegarde : %1</translation>
    </message>
    <message id="data_lost">
        <source></source>
        <translation>Vos données n’ont pas pu être ouvertes, et le programme a commencé avec une base vide. (%1)</translation>
    </message>
    <message id="data_lost_with_backup">
        <source></source>
        <translation>Vos données n’ont pas pu être ouvertes, et le programme a commencé avec une base vide. (%1) Il y a une sauvegarde du %2.</translation>
    </message>
    <message id="data_no_backup">
        <source></source>
        <translation>Il n’y a pas encore de sauvegarde.</translation>
    </message>
    <message id="data_no_records">
        <source></source>
        <translation>Aucune session n’est encore enregistrée.</translation>
    </message>
    <message id="data_not_replaced">
        <source></source>
        <translation>Vos données restent comme elles étaient : le changement n’a pas pu être fait. (%1)</translation>
    </message>
    <message id="data_open_folder_button">
        <source></source>
        <translation>Ouvrir le dossier</translation>
    </message>
    <message id="data_place_text">
        <source></source>
        <translation>Tout est dans un seul fichier sur cet ordinateur, et nulle part ailleurs.</translation>
    </message>
    <message id="data_place_title">
        <source></source>
        <translation>Où sont vos données</translation>
    </message>
    <message id="data_records_since">
        <source></source>
        <translation>Enregistrement depuis le %1 : %2, %3.</translation>
    </message>
    <message id="data_refused_session">
        <source></source>
        <translation>Pas pendant une phase : terminez-la d’abord.</translation>
    </message>
    <message id="data_restore_button">
        <source></source>
        <translation>Restaurer la sauvegarde</translation>
    </message>
    <message id="data_restore_failed">
        <source></source>
        <translation>La sauvegarde n’a pas été restaurée, et rien n’a changé. %1</translation>
    </message>
    <message id="data_restored">
        <source></source>
        <translation>La sauvegarde est en place.</translation>
    </message>
    <message id="data_restored_damaged">
        <source></source>
        <translation>La sauvegarde est en place. Ce qu’il y avait avant était illisible ; vous le trouverez dans %1 tant que vous ne le supprimez pas.</translation>
    </message>
    <message id="data_restored_kept">
        <source></source>
        <translation>La sauvegarde est en place. Ce qu’il y avait avant est parmi les sauvegardes.</translation>
    </message>
    <message id="data_restoring">
        <source></source>
        <translation>Vérification et préparation de la sauvegarde…</translation>
    </message>
    <message id="date_at_time">
        <source></source>
        <translation>%1 à %2</translation>
    </message>
    <message id="date_day_month_short">
        <source></source>
        <translation>d MMM</translation>
    </message>
    <message id="date_first_of_month">
        <source></source>
        <translation>1er</translation>
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
        <translation>Jours</translation>
    </message>
    <message id="day_in_a_week">
        <source></source>
        <translation>Dans 7 jours</translation>
    </message>
    <message id="default_phases_empty">
        <source></source>
        <translation>Aucune phase : le tableau n’a pas d’onglets.</translation>
    </message>
    <message id="default_phases_hint">
        <source></source>
        <translation>Les onglets du tableau. Alt+↑↓ en déplace un.</translation>
    </message>
    <message id="default_phases_label">
        <source></source>
        <translation>Phases</translation>
    </message>
    <message id="delete_button">
        <source></source>
        <translation>Supprimer</translation>
    </message>
    <message id="deletion_leaves_without_phase" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n tâche reste dans le projet, sans phase.</numerusform>
            <numerusform>%n tâches restent dans le projet, sans phase.</numerusform>
        </translation>
    </message>
    <message id="deletion_takes_along">
        <source></source>
        <translation>Est supprimé avec : %1.</translation>
    </message>
    <message id="done_button">
        <source></source>
        <translation>Terminer</translation>
    </message>
    <message id="drop_task_here">
        <source></source>
        <translation>Déposez une tâche ici</translation>
    </message>
    <message id="duration_hours_minutes">
        <source></source>
        <translation>%1 h %2 min</translation>
    </message>
    <message id="duration_label">
        <source></source>
        <translation>Durée de la phase de travail</translation>
    </message>
    <message id="duration_minutes">
        <source></source>
        <translation>%1 minutes</translation>
    </message>
    <message id="duration_minutes_seconds">
        <source></source>
        <translation>%1 min %2 s</translation>
    </message>
    <message id="duration_own">
        <source></source>
        <translation>Autre</translation>
    </message>
    <message id="duration_own_name">
        <source></source>
        <translation>Minutes, de 1 à 1440</translation>
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
        <translation>%1 s</translation>
    </message>
    <message id="edit_project">
        <source></source>
        <translation>Modifier le projet</translation>
    </message>
    <message id="enumeration_and">
        <source></source>
        <translation>%1 et %2</translation>
    </message>
    <message id="erase_backup_offer">
        <source></source>
        <translation>Une sauvegarde avant peut être utile.</translation>
    </message>
    <message id="erase_backups_hint">
        <source></source>
        <translation>Sans elles, aucun retour n’est possible.</translation>
    </message>
    <message id="erase_backups_label">
        <source></source>
        <translation>Aussi les sauvegardes</translation>
    </message>
    <message id="erase_button">
        <source></source>
        <translation>Effacer et redémarrer</translation>
    </message>
    <message id="erase_message">
        <source></source>
        <translation>Tous les projets, les tâches, les liens vers leurs fichiers, les sessions et les relevés d’usage sont supprimés de cet ordinateur. Vos réglages, vos listes et vos sauvegardes restent, sauf si vous le demandez ici. Le programme redémarre ensuite.</translation>
    </message>
    <message id="erase_open_button">
        <source></source>
        <translation>Tout effacer…</translation>
    </message>
    <message id="erase_settings_hint">
        <source></source>
        <translation>Langue, sons, votre nom, et les quatre listes de blocage.</translation>
    </message>
    <message id="erase_settings_label">
        <source></source>
        <translation>Aussi les réglages et les listes</translation>
    </message>
    <message id="erase_text">
        <source></source>
        <translation>Supprime définitivement tous les projets, tâches, sessions et relevés d’usage.</translation>
    </message>
    <message id="erase_title">
        <source></source>
        <translation>Tout effacer</translation>
    </message>
    <message id="erase_word">
        <source></source>
        <translation>effacer</translation>
    </message>
    <message id="erase_word_label">
        <source></source>
        <translation>Tapez « %1 » pour confirmer</translation>
    </message>
    <message id="explain_application_rule">
        <source></source>
        <translation>Chaque moment où elle était au premier plan pendant une session, l’un après l’autre.</translation>
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
        <translation>Les secondes de toutes les applications additionnées ; la page en montre les minutes entières.</translation>
    </message>
    <message id="explain_back_button">
        <source></source>
        <translation>Retour</translation>
    </message>
    <message id="explain_best_day_rule">
        <source></source>
        <translation>Le jour avec le plus de minutes de sessions terminées. Une phase de travail en cours ne compte pas ici.</translation>
    </message>
    <message id="explain_bucket_rule">
        <source></source>
        <translation>Les minutes des sessions terminées commencées dans cet intervalle, et de la phase de travail en cours s’il contient l’instant présent.</translation>
    </message>
    <message id="explain_category_rule">
        <source></source>
        <translation>Les secondes des applications enregistrées sous cette catégorie.</translation>
    </message>
    <message id="explain_day_rule">
        <source></source>
        <translation>Les sessions terminées commencées ce jour-là.</translation>
    </message>
    <message id="explain_focus_rule">
        <source></source>
        <translation>Les minutes des sessions terminées additionnées. D’une phase de travail en cours, chaque minute entamée compte.</translation>
    </message>
    <message id="explain_hour_rule">
        <source></source>
        <translation>Les minutes des sessions terminées commencées dans cette heure, en entier même si elles ont débordé sur la suivante.</translation>
    </message>
    <message id="explain_intervals" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n intervalle</numerusform>
            <numerusform>%n intervalles</numerusform>
        </translation>
    </message>
    <message id="explain_intervals_name">
        <source></source>
        <translation>Intervalles</translation>
    </message>
    <message id="explain_live">
        <source></source>
        <translation>Phase de travail en cours</translation>
    </message>
    <message id="explain_live_detail">
        <source></source>
        <translation>Pas encore enregistrée</translation>
    </message>
    <message id="explain_none">
        <source></source>
        <translation>Aucun enregistrement derrière ce chiffre.</translation>
    </message>
    <message id="explain_read_problem">
        <source></source>
        <translation>Les enregistrements n’ont pas pu être lus : %1</translation>
    </message>
    <message id="explain_score_rule">
        <source></source>
        <translation>La moyenne des scores ci-dessous. Les sessions sans score sont laissées de côté ; une phase de travail en cours compte avec son score du moment.</translation>
    </message>
    <message id="explain_score_sum" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%1 points, %n score</numerusform>
            <numerusform>%1 points, divisés par %n scores</numerusform>
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
        <translation>Chaque phase de travail menée à son terme compte une fois.</translation>
    </message>
    <message id="explain_streak_rule">
        <source></source>
        <translation>Les jours de suite avec au moins une session terminée, en remontant depuis aujourd’hui, 365 au plus.</translation>
    </message>
    <message id="explain_sum_format">
        <source></source>
        <translation>%1 · %2</translation>
    </message>
    <message id="explain_waiting">
        <source></source>
        <translation>Lecture des enregistrements…</translation>
    </message>
    <message id="explain_weekday_rule">
        <source></source>
        <translation>Les minutes des sessions terminées commencées ce jour de la semaine.</translation>
    </message>
    <message id="explain_with_live_format">
        <source></source>
        <translation>%1 et celle en cours</translation>
    </message>
    <message id="extension_firefox_system">
        <source></source>
        <translation>Il reste une étape : Firefox n’accepte cette extension que depuis un dossier du système. Un administrateur copie %1 dans /usr/share/mozilla/extensions/{ec8030f7-c20a-464f-9b0e-13a3a9e97384} ; relancez ensuite Firefox.</translation>
    </message>
    <message id="extension_foreign_file">
        <source></source>
        <translation>Un autre programme a mis son propre fichier à la place du nôtre : %1. Il a été laissé tel quel.</translation>
    </message>
    <message id="extension_host_missing">
        <source></source>
        <translation>L’extension a besoin du programme norvin-focus-browser-host, qui n’est pas installé.</translation>
    </message>
    <message id="extension_install_button">
        <source></source>
        <translation>Installer l’extension</translation>
    </message>
    <message id="extension_load_unpacked">
        <source></source>
        <translation>Il reste une étape : ouvrez la page des extensions du navigateur, activez son mode développeur et chargez le dossier %1.</translation>
    </message>
    <message id="extension_not_removed">
        <source></source>
        <translation>L’extension n’a pas pu être retirée : %1</translation>
    </message>
    <message id="extension_not_written">
        <source></source>
        <translation>L’extension n’a pas pu être écrite : %1</translation>
    </message>
    <message id="extension_remove_button">
        <source></source>
        <translation>Retirer l’extension</translation>
    </message>
    <message id="extension_removed">
        <source></source>
        <translation>L’extension est retirée.</translation>
    </message>
    <message id="extension_restart_browser">
        <source></source>
        <translation>L’extension est en place. Fermez le navigateur, puis rouvrez-le.</translation>
    </message>
    <message id="feedback_broken">
        <source></source>
        <translation>La connexion s’est rompue avant la réponse. Vous pouvez renvoyer : le même message n’est pas compté deux fois.</translation>
    </message>
    <message id="feedback_close_button">
        <source></source>
        <translation>Fermer</translation>
    </message>
    <message id="feedback_email_label">
        <source></source>
        <translation>Adresse e-mail pour une réponse (facultative)</translation>
    </message>
    <message id="feedback_email_placeholder">
        <source></source>
        <translation>nom@example.org</translation>
    </message>
    <message id="feedback_email_wrong">
        <source></source>
        <translation>Ce n’est pas une adresse e-mail.</translation>
    </message>
    <message id="feedback_kept">
        <source></source>
        <translation>Votre texte est gardé.</translation>
    </message>
    <message id="feedback_keys_hint">
        <source></source>
        <translation>Ctrl+Entrée envoie. Ce que vous écrivez est gardé jusqu’à son arrivée.</translation>
    </message>
    <message id="feedback_kind_idea">
        <source></source>
        <translation>Idée</translation>
    </message>
    <message id="feedback_kind_label">
        <source></source>
        <translation>Nature de l’avis</translation>
    </message>
    <message id="feedback_kind_praise">
        <source></source>
        <translation>Compliment</translation>
    </message>
    <message id="feedback_kind_problem">
        <source></source>
        <translation>Problème</translation>
    </message>
    <message id="feedback_not_understood">
        <source></source>
        <translation>La réponse ne vient pas d’un service d’avis, mais peut-être de la page de connexion d’un réseau.</translation>
    </message>
    <message id="feedback_offline">
        <source></source>
        <translation>Le serveur n’a pas pu être joint. Êtes-vous en ligne ?</translation>
    </message>
    <message id="feedback_preview_destination">
        <source></source>
        <translation>à %1</translation>
    </message>
    <message id="feedback_preview_label">
        <source></source>
        <translation>Voici exactement ce qui est envoyé</translation>
    </message>
    <message id="feedback_redirected">
        <source></source>
        <translation>Le serveur renvoie ailleurs. Norvin Focus ne suit pas.</translation>
    </message>
    <message id="feedback_refused">
        <source></source>
        <translation>Le serveur a refusé le message (statut %1).</translation>
    </message>
    <message id="feedback_retry_button">
        <source></source>
        <translation>Réessayer</translation>
    </message>
    <message id="feedback_section_text">
        <source></source>
        <translation>Dites-nous ce qui manque ou ne marche pas. Vous voyez chaque mot avant l’envoi.</translation>
    </message>
    <message id="feedback_send_button">
        <source></source>
        <translation>Envoyer</translation>
    </message>
    <message id="feedback_sending">
        <source></source>
        <translation>Envoi…</translation>
    </message>
    <message id="feedback_text_placeholder">
        <source></source>
        <translation>Que souhaitez-vous nous dire ?</translation>
    </message>
    <message id="feedback_thanks">
        <source></source>
        <translation>Merci ! Votre message est arrivé.</translation>
    </message>
    <message id="feedback_timed_out">
        <source></source>
        <translation>Le serveur n’a pas répondu à temps.</translation>
    </message>
    <message id="feedback_title">
        <source></source>
        <translation>Proposer une amélioration</translation>
    </message>
    <message id="feedback_untrusted">
        <source></source>
        <translation>Le serveur n’a pas pu prouver son identité : rien n’a été envoyé.</translation>
    </message>
    <message id="file_open_button">
        <source></source>
        <translation>Ouvrir</translation>
    </message>
    <message id="file_save_button">
        <source></source>
        <translation>Enregistrer</translation>
    </message>
    <message id="floating_timer">
        <source></source>
        <translation>Minuteur flottant</translation>
    </message>
    <message id="floating_timer_close">
        <source></source>
        <translation>Désactiver le minuteur flottant</translation>
    </message>
    <message id="floating_timer_hint">
        <source></source>
        <translation>Une petite fenêtre garde le temps en vue quand la fenêtre principale n’est pas devant.</translation>
    </message>
    <message id="floating_timer_move">
        <source></source>
        <translation>Déplacer le minuteur flottant avec les flèches</translation>
    </message>
    <message id="floating_timer_switch">
        <source></source>
        <translation>Minuteur flottant</translation>
    </message>
    <message id="floating_timer_unavailable">
        <source></source>
        <translation>Ce bureau ne laisse aucune fenêtre rester devant les autres.</translation>
    </message>
    <message id="free_session">
        <source></source>
        <translation>Session libre</translation>
    </message>
    <message id="go_to_today_button">
        <source></source>
        <translation>Revenir à aujourd’hui</translation>
    </message>
    <message id="health_absent">
        <source></source>
        <translation>Absent de ce bureau</translation>
    </message>
    <message id="health_accessibility_missing">
        <source></source>
        <translation>Ce bureau n’a pas de service d’accessibilité : les pages d’un navigateur ne peuvent pas être distinguées.</translation>
    </message>
    <message id="health_accessibility_missing_remedy">
        <source></source>
        <translation>Installez le paquet at-spi2-core, ou ajoutez l’extension à votre navigateur.</translation>
    </message>
    <message id="health_accessibility_off">
        <source></source>
        <translation>Norvin Focus ne voit pas quel site est devant vous dans vos navigateurs.</translation>
    </message>
    <message id="health_accessibility_off_remedy">
        <source></source>
        <translation>Il le peut dès que l’accessibilité du bureau est active : les programmes peuvent alors lire les fenêtres les uns des autres. Norvin Focus lit l’adresse de la page affichée, rien d’autre, et seulement pendant une session. Vous pourrez la désactiver dans « État du suivi ».</translation>
    </message>
    <message id="health_all_good">
        <source></source>
        <translation>Tout fonctionne.</translation>
    </message>
    <message id="health_backup">
        <source></source>
        <translation>Sauvegarder vos données chaque jour</translation>
    </message>
    <message id="health_backup_failed">
        <source></source>
        <translation>La dernière sauvegarde n’a pas pu être faite.</translation>
    </message>
    <message id="health_backup_failed_remedy">
        <source></source>
        <translation>Faites de la place sur le disque. La sauvegarde du jour est retentée chaque heure ; les préférences en font une aussitôt.</translation>
    </message>
    <message id="health_browser">
        <source></source>
        <translation>Pages de %1</translation>
    </message>
    <message id="health_browser_alert">
        <source></source>
        <translation>Alerte devant les sites bloqués</translation>
    </message>
    <message id="health_browser_by_extension">
        <source></source>
        <translation>Pages de %1, par l’extension</translation>
    </message>
    <message id="health_browser_not_answering">
        <source></source>
        <translation>%1 ne répond pas.</translation>
    </message>
    <message id="health_browser_not_answering_remedy">
        <source></source>
        <translation>Il sera interrogé de nouveau dans un instant. Si cela dure, fermez %1 et rouvrez-le.</translation>
    </message>
    <message id="health_browser_pages">
        <source></source>
        <translation>Distinguer les pages dans les navigateurs</translation>
    </message>
    <message id="health_browser_restart">
        <source></source>
        <translation>%1 a été ouvert avant l’activation de l’accessibilité.</translation>
    </message>
    <message id="health_browser_restart_remedy">
        <source></source>
        <translation>Fermez %1 une fois, puis rouvrez-le.</translation>
    </message>
    <message id="health_bus_name_taken">
        <source></source>
        <translation>Un autre programme porte le nom de Norvin Focus sur le bus de session.</translation>
    </message>
    <message id="health_bus_name_taken_remedy">
        <source></source>
        <translation>Quittez l’autre copie de Norvin Focus, puis relancez celle-ci.</translation>
    </message>
    <message id="health_check_again">
        <source></source>
        <translation>Vérifier à nouveau</translation>
    </message>
    <message id="health_extension_not_connected">
        <source></source>
        <translation>L’extension est installée, mais %1 ne s’est pas connecté.</translation>
    </message>
    <message id="health_extension_not_connected_remedy">
        <source></source>
        <translation>Fermez %1 et rouvrez-le, et vérifiez que l’extension y est activée.</translation>
    </message>
    <message id="health_extension_socket">
        <source></source>
        <translation>L’extension de vos navigateurs ne peut pas joindre Norvin Focus.</translation>
    </message>
    <message id="health_extension_socket_remedy">
        <source></source>
        <translation>Norvin Focus a besoin d’un répertoire d’exécution à vous (XDG_RUNTIME_DIR), que l’ouverture de session crée d’ordinaire.</translation>
    </message>
    <message id="health_extensions">
        <source></source>
        <translation>Connexion à l’extension des navigateurs</translation>
    </message>
    <message id="health_fails">
        <source></source>
        <translation>Ne fonctionne pas</translation>
    </message>
    <message id="health_frontmost_application">
        <source></source>
        <translation>Reconnaître l’application au premier plan</translation>
    </message>
    <message id="health_hiding">
        <source></source>
        <translation>Masquer les applications bloquées</translation>
    </message>
    <message id="health_idle_time">
        <source></source>
        <translation>Remarquer l’inactivité du clavier et du pointeur</translation>
    </message>
    <message id="health_no_display">
        <source></source>
        <translation>Il n’y a pas de connexion à un écran.</translation>
    </message>
    <message id="health_no_display_remedy">
        <source></source>
        <translation>Lancez Norvin Focus depuis une session graphique.</translation>
    </message>
    <message id="health_no_idle_source">
        <source></source>
        <translation>L’écran n’indique pas depuis quand le clavier et le pointeur sont immobiles.</translation>
    </message>
    <message id="health_no_idle_source_remedy">
        <source></source>
        <translation>Activez l’extension MIT-SCREEN-SAVER du serveur X.</translation>
    </message>
    <message id="health_no_login1">
        <source></source>
        <translation>Le service de connexion (logind) ne répond pas, la mise en veille passe donc inaperçue.</translation>
    </message>
    <message id="health_no_login1_remedy">
        <source></source>
        <translation>Assurez-vous que systemd-logind ou elogind est lancé.</translation>
    </message>
    <message id="health_no_notifications">
        <source></source>
        <translation>Aucun service n’affiche de notifications sur ce bureau.</translation>
    </message>
    <message id="health_no_notifications_remedy">
        <source></source>
        <translation>Installez un service de notifications, par exemple dunst.</translation>
    </message>
    <message id="health_no_session_bus">
        <source></source>
        <translation>Il n’y a pas de bus de session (D-Bus).</translation>
    </message>
    <message id="health_no_session_bus_remedy">
        <source></source>
        <translation>Lancez Norvin Focus depuis une session graphique, ou avec dbus-run-session.</translation>
    </message>
    <message id="health_no_sound_device">
        <source></source>
        <translation>Le serveur de son n’a aucune sortie.</translation>
    </message>
    <message id="health_no_sound_device_remedy">
        <source></source>
        <translation>Branchez des haut-parleurs ou un casque, ou choisissez une sortie dans les réglages du son.</translation>
    </message>
    <message id="health_no_sound_server">
        <source></source>
        <translation>Aucun serveur de son ne répond.</translation>
    </message>
    <message id="health_no_sound_server_remedy">
        <source></source>
        <translation>Lancez PipeWire ou PulseAudio.</translation>
    </message>
    <message id="health_no_sound_theme">
        <source></source>
        <translation>Aucun thème de sons n’est installé.</translation>
    </message>
    <message id="health_no_sound_theme_remedy">
        <source></source>
        <translation>Installez un thème de sons, par exemple le paquet sound-theme-freedesktop.</translation>
    </message>
    <message id="health_no_tray">
        <source></source>
        <translation>Aucune barre de ce bureau n’a de zone de notification : l’icône avec le temps n’apparaît donc pas. Ce n’est pas un défaut si le bureau n’en propose pas.</translation>
    </message>
    <message id="health_no_tray_remedy">
        <source></source>
        <translation>Ouvrez le panneau du minuteur depuis le menu de la fenêtre. Sous GNOME, l’extension AppIndicator ajoute cette zone.</translation>
    </message>
    <message id="health_no_window_manager">
        <source></source>
        <translation>Le gestionnaire de fenêtres n’indique pas quelle fenêtre est active.</translation>
    </message>
    <message id="health_no_window_manager_remedy">
        <source></source>
        <translation>Ouvrez une session sur un bureau dont le gestionnaire de fenêtres suit les conventions usuelles (EWMH), comme GNOME, KDE Plasma, Xfce ou LXQt.</translation>
    </message>
    <message id="health_notifications">
        <source></source>
        <translation>Notifications en fin de phase</translation>
    </message>
    <message id="health_preferences">
        <source></source>
        <translation>Conserver vos réglages</translation>
    </message>
    <message id="health_preferences_damaged">
        <source></source>
        <translation>Le fichier de réglages est endommagé. Les réglages habituels s’appliquent.</translation>
    </message>
    <message id="health_preferences_damaged_remedy">
        <source></source>
        <translation>Votre ancien fichier n’a pas été jeté. Changez un réglage pour en écrire un nouveau.</translation>
    </message>
    <message id="health_preferences_unwritable">
        <source></source>
        <translation>Le fichier de réglages ne peut pas être écrit. Les changements ne durent que jusqu’à la fermeture.</translation>
    </message>
    <message id="health_preferences_unwritable_remedy">
        <source></source>
        <translation>Vérifiez l’espace libre et les droits de votre répertoire de configuration.</translation>
    </message>
    <message id="health_problems" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n problème</numerusform>
            <numerusform>%n problèmes</numerusform>
        </translation>
    </message>
    <message id="health_session_bus">
        <source></source>
        <translation>Commande par le terminal et d’autres programmes</translation>
    </message>
    <message id="health_sleep">
        <source></source>
        <translation>Remarquer la mise en veille de la machine</translation>
    </message>
    <message id="health_sound_server_silent">
        <source></source>
        <translation>Le serveur de son ne répond pas.</translation>
    </message>
    <message id="health_sound_server_silent_remedy">
        <source></source>
        <translation>Redémarrez PipeWire ou PulseAudio ; le tic-tac reviendra de lui-même.</translation>
    </message>
    <message id="health_sounds">
        <source></source>
        <translation>Sons</translation>
    </message>
    <message id="health_store">
        <source></source>
        <translation>Enregistrer vos tâches et sessions</translation>
    </message>
    <message id="health_store_unsaved">
        <source></source>
        <translation>Des changements n’ont pas pu être écrits. Ils sont gardés en mémoire et seront réessayés.</translation>
    </message>
    <message id="health_store_unsaved_remedy">
        <source></source>
        <translation>Vérifiez l’espace libre et les droits de votre répertoire de données avant de quitter.</translation>
    </message>
    <message id="health_subtitle">
        <source></source>
        <translation>Ce que Norvin Focus peut utiliser de ce bureau, et que faire pour le reste.</translation>
    </message>
    <message id="health_ticks">
        <source></source>
        <translation>Tic-tac et son d’ambiance</translation>
    </message>
    <message id="health_title">
        <source></source>
        <translation>État du suivi</translation>
    </message>
    <message id="health_tray">
        <source></source>
        <translation>Icône dans la zone de notification</translation>
    </message>
    <message id="health_wayland_idle">
        <source></source>
        <translation>Ce bureau Wayland n’indique pas depuis quand le clavier et le pointeur sont immobiles.</translation>
    </message>
    <message id="health_wayland_idle_remedy">
        <source></source>
        <translation>Choisissez la variante X11 (Xorg) de votre bureau sur l’écran de connexion.</translation>
    </message>
    <message id="health_wayland_overlay">
        <source></source>
        <translation>Ce bureau Wayland ne laisse aucune fenêtre se placer devant toutes les autres. Une notification remplace donc l’alerte.</translation>
    </message>
    <message id="health_wayland_overlay_remedy">
        <source></source>
        <translation>Choisissez la variante X11 (Xorg) de votre bureau sur l’écran de connexion.</translation>
    </message>
    <message id="health_wayland_workspace">
        <source></source>
        <translation>Ce bureau Wayland ne laisse pas Norvin Focus voir les fenêtres des autres applications.</translation>
    </message>
    <message id="health_wayland_workspace_remedy">
        <source></source>
        <translation>Choisissez la variante X11 (Xorg) de votre bureau sur l’écran de connexion.</translation>
    </message>
    <message id="health_works">
        <source></source>
        <translation>Fonctionne</translation>
    </message>
    <message id="history_app_analysis_title">
        <source></source>
        <translation>Applications</translation>
    </message>
    <message id="history_average_label">
        <source></source>
        <translation>en moyenne, sur 10</translation>
    </message>
    <message id="history_best_day_title">
        <source></source>
        <translation>Meilleur jour</translation>
    </message>
    <message id="history_by_category_title">
        <source></source>
        <translation>Par catégorie</translation>
    </message>
    <message id="history_completed_label">
        <source></source>
        <translation>terminées</translation>
    </message>
    <message id="history_cumulated_label">
        <source></source>
        <translation>temps cumulé</translation>
    </message>
    <message id="history_focus_evolution_title">
        <source></source>
        <translation>Évolution de la concentration</translation>
    </message>
    <message id="history_focus_score_title">
        <source></source>
        <translation>Score de focus</translation>
    </message>
    <message id="history_last_10_subtitle">
        <source></source>
        <translation>Les 10 dernières de la période</translation>
    </message>
    <message id="history_no_app_data_period">
        <source></source>
        <translation>Aucune application mesurée sur cette période</translation>
    </message>
    <message id="history_no_distribution_data">
        <source></source>
        <translation>Rien à répartir sur la semaine pour l’instant</translation>
    </message>
    <message id="history_no_sessions_period">
        <source></source>
        <translation>Aucune session terminée sur cette période</translation>
    </message>
    <message id="history_period_usage_subtitle">
        <source></source>
        <translation>Part du temps mesuré</translation>
    </message>
    <message id="history_recent_sessions_title">
        <source></source>
        <translation>Sessions récentes</translation>
    </message>
    <message id="history_sessions_title">
        <source></source>
        <translation>Sessions</translation>
    </message>
    <message id="history_top_apps_title">
        <source></source>
        <translation>Les plus utilisées</translation>
    </message>
    <message id="history_total_focus_title">
        <source></source>
        <translation>Concentration totale</translation>
    </message>
    <message id="history_weekly_distribution_subtitle">
        <source></source>
        <translation>Concentration selon le jour où la session a commencé</translation>
    </message>
    <message id="history_weekly_distribution_title">
        <source></source>
        <translation>Jours de la semaine</translation>
    </message>
    <message id="immersion_off">
        <source></source>
        <translation>Non</translation>
    </message>
    <message id="immersion_reduced_motion">
        <source></source>
        <translation>Votre bureau demande moins de mouvement : seule la teinte s’approfondit.</translation>
    </message>
    <message id="immersion_subtitle">
        <source></source>
        <translation>La fenêtre plonge en eau profonde au fil des premières minutes de travail</translation>
    </message>
    <message id="immersion_title">
        <source></source>
        <translation>Immersion</translation>
    </message>
    <message id="import_add_button">
        <source></source>
        <translation>Ajouter aux listes</translation>
    </message>
    <message id="import_added" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n élément est nouveau et serait ajouté.</numerusform>
            <numerusform>%n éléments sont nouveaux et seraient ajoutés.</numerusform>
        </translation>
    </message>
    <message id="import_cancel_button">
        <source></source>
        <translation>Annuler</translation>
    </message>
    <message id="import_close_button">
        <source></source>
        <translation>Fermer</translation>
    </message>
    <message id="import_contents">
        <source></source>
        <translation>Le fichier contient %1 et %2.</translation>
    </message>
    <message id="import_nothing_new">
        <source></source>
        <translation>Les listes contiennent déjà exactement la même chose.</translation>
    </message>
    <message id="import_refused_message">
        <source></source>
        <translation>Rien n’a été modifié.</translation>
    </message>
    <message id="import_refused_title">
        <source></source>
        <translation>%1 a été refusé</translation>
    </message>
    <message id="import_removed" numerus="yes">
        <source></source>
        <translation>
            <numerusform>Remplacer retirerait aussi %n élément absent du fichier.</numerusform>
            <numerusform>Remplacer retirerait aussi %n éléments absents du fichier.</numerusform>
        </translation>
    </message>
    <message id="import_replace_button">
        <source></source>
        <translation>Remplacer les listes</translation>
    </message>
    <message id="import_title">
        <source></source>
        <translation>Importer %1 ?</translation>
    </message>
    <message id="inactivity_hint">
        <source></source>
        <translation>Quand le clavier et le pointeur se reposent pendant une phase de travail, la session vous dit inactif.</translation>
    </message>
    <message id="inactivity_notice">
        <source></source>
        <translation>Clavier et pointeur sont immobiles depuis un moment. Inactivité dans cette session : %1.</translation>
    </message>
    <message id="inactivity_switch">
        <source></source>
        <translation>Remarquer mes absences</translation>
    </message>
    <message id="inactivity_threshold_label">
        <source></source>
        <translation>Absent après</translation>
    </message>
    <message id="kpi_apps">
        <source></source>
        <translation>Applications</translation>
    </message>
    <message id="kpi_average">
        <source></source>
        <translation>en moyenne, sur 10</translation>
    </message>
    <message id="kpi_completed">
        <source></source>
        <translation>terminées aujourd’hui</translation>
    </message>
    <message id="kpi_consecutive">
        <source></source>
        <translation>d’affilée</translation>
    </message>
    <message id="kpi_focus">
        <source></source>
        <translation>Concentration</translation>
    </message>
    <message id="kpi_score">
        <source></source>
        <translation>Score de focus</translation>
    </message>
    <message id="kpi_sessions">
        <source></source>
        <translation>Sessions</translation>
    </message>
    <message id="kpi_streak">
        <source></source>
        <translation>Série</translation>
    </message>
    <message id="kpi_streak_unit" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n jour</numerusform>
            <numerusform>%n jours</numerusform>
        </translation>
    </message>
    <message id="kpi_total_time">
        <source></source>
        <translation>au total aujourd’hui</translation>
    </message>
    <message id="kpi_used">
        <source></source>
        <translation>utilisées aujourd’hui</translation>
    </message>
    <message id="language_label">
        <source></source>
        <translation>Langue</translation>
    </message>
    <message id="late_tasks" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n tâche en retard</numerusform>
            <numerusform>%n tâches en retard</numerusform>
        </translation>
    </message>
    <message id="late_tasks_none">
        <source></source>
        <translation>Plus rien n’est en retard.</translation>
    </message>
    <message id="late_tasks_subtitle">
        <source></source>
        <translation>Échues ou prévues pour un jour passé. Une échéance reste tant que vous ne la changez pas dans la tâche.</translation>
    </message>
    <message id="late_tasks_title">
        <source></source>
        <translation>Tâches en retard</translation>
    </message>
    <message id="length_minutes">
        <source></source>
        <translation>%1 min</translation>
    </message>
    <message id="licence_all_filter">
        <source></source>
        <translation>Tous les fichiers</translation>
    </message>
    <message id="licence_bad_signature">
        <source></source>
        <translation>Cette licence a été modifiée ou abîmée : sa signature ne correspond pas.</translation>
    </message>
    <message id="licence_choose_button">
        <source></source>
        <translation>Choisir un fichier…</translation>
    </message>
    <message id="licence_choose_title">
        <source></source>
        <translation>Choisir une licence</translation>
    </message>
    <message id="licence_closed_explanation">
        <source></source>
        <translation>Une licence est nécessaire pour de nouvelles sessions. Vos données restent toujours lisibles et exportables. La licence est vérifiée sur cet ordinateur ; personne n’est interrogé.</translation>
    </message>
    <message id="licence_ended">
        <source></source>
        <translation>La licence de %1 a pris fin le %2.</translation>
    </message>
    <message id="licence_enter_button">
        <source></source>
        <translation>Saisir une licence</translation>
    </message>
    <message id="licence_file_filter">
        <source></source>
        <translation>Licences</translation>
    </message>
    <message id="licence_free">
        <source></source>
        <translation>Cet exemplaire de Norvin Focus est libre d’utilisation et n’a besoin d’aucune licence.</translation>
    </message>
    <message id="licence_install_button">
        <source></source>
        <translation>Utiliser cette licence</translation>
    </message>
    <message id="licence_invalid">
        <source></source>
        <translation>La licence de cet ordinateur n’est pas utilisable.</translation>
    </message>
    <message id="licence_licensed">
        <source></source>
        <translation>Licence accordée à %1</translation>
    </message>
    <message id="licence_not_written">
        <source></source>
        <translation>La licence n’a pas pu être enregistrée. Le disque est-il plein ?</translation>
    </message>
    <message id="licence_other_product">
        <source></source>
        <translation>Cette licence est celle d’un autre produit.</translation>
    </message>
    <message id="licence_over">
        <source></source>
        <translation>Cette licence n’est plus valable.</translation>
    </message>
    <message id="licence_paste_button">
        <source></source>
        <translation>Coller une licence…</translation>
    </message>
    <message id="licence_paste_placeholder">
        <source></source>
        <translation>Collez ici toute la licence, de « product » jusqu’à la fin de la signature.</translation>
    </message>
    <message id="licence_trial_days" numerus="yes">
        <source></source>
        <translation>
            <numerusform>Essai : encore %n jour</numerusform>
            <numerusform>Essai : encore %n jours</numerusform>
        </translation>
    </message>
    <message id="licence_trial_explanation">
        <source></source>
        <translation>Après l’essai, une licence est nécessaire pour de nouvelles sessions. Vos données restent toujours lisibles et exportables. La licence est vérifiée sur cet ordinateur ; personne n’est interrogé.</translation>
    </message>
    <message id="licence_trial_over">
        <source></source>
        <translation>L’essai est terminé.</translation>
    </message>
    <message id="licence_unreadable">
        <source></source>
        <translation>Ce n’est pas une licence de Norvin Focus.</translation>
    </message>
    <message id="licence_until">
        <source></source>
        <translation>Valable jusqu’au %1.</translation>
    </message>
    <message id="licence_without_end">
        <source></source>
        <translation>Valable sans limite de durée.</translation>
    </message>
    <message id="list_blocked">
        <source></source>
        <translation>Bloquée</translation>
    </message>
    <message id="list_file_empty_name">
        <source></source>
        <translation>Un identifiant de « %1 » est vide.</translation>
    </message>
    <message id="list_file_line">
        <source></source>
        <translation>Ligne %1 : %2</translation>
    </message>
    <message id="list_file_missing_key">
        <source></source>
        <translation>« %1 » manque.</translation>
    </message>
    <message id="list_file_no_lists">
        <source></source>
        <translation>Ce n’est pas un fichier de listes de blocage.</translation>
    </message>
    <message id="list_file_not_a_list">
        <source></source>
        <translation>« %1 » doit être une liste, entre crochets.</translation>
    </message>
    <message id="list_file_not_a_site">
        <source></source>
        <translation>« %1 » n’est pas un site.</translation>
    </message>
    <message id="list_file_not_a_text">
        <source></source>
        <translation>Les éléments de « %1 » doivent être des textes, entre guillemets.</translation>
    </message>
    <message id="list_file_not_an_object">
        <source></source>
        <translation>« %1 » doit être un objet, entre accolades.</translation>
    </message>
    <message id="list_file_not_json">
        <source></source>
        <translation>Ce n’est pas du JSON valable (%1).</translation>
    </message>
    <message id="list_file_repeated_key">
        <source></source>
        <translation>« %1 » s’y trouve deux fois.</translation>
    </message>
    <message id="list_file_too_large">
        <source></source>
        <translation>Le fichier est trop gros pour des listes de blocage.</translation>
    </message>
    <message id="list_file_unknown_key">
        <source></source>
        <translation>« %1 » n’est pas connu ici.</translation>
    </message>
    <message id="list_file_unreadable">
        <source></source>
        <translation>Le fichier ne peut pas être lu : %1</translation>
    </message>
    <message id="list_file_wrong_version">
        <source></source>
        <translation>La version « %1 » du fichier n’est pas connue ici ; un Norvin Focus plus récent l’a peut-être écrit.</translation>
    </message>
    <message id="list_none">
        <source></source>
        <translation>Aucune</translation>
    </message>
    <message id="list_whitelisted">
        <source></source>
        <translation>Liste blanche</translation>
    </message>
    <message id="lists_export_button">
        <source></source>
        <translation>Exporter…</translation>
    </message>
    <message id="lists_export_title">
        <source></source>
        <translation>Exporter les listes de blocage</translation>
    </message>
    <message id="lists_file_filter">
        <source></source>
        <translation>Listes de blocage</translation>
    </message>
    <message id="lists_import_button">
        <source></source>
        <translation>Importer…</translation>
    </message>
    <message id="lists_import_title">
        <source></source>
        <translation>Importer des listes de blocage</translation>
    </message>
    <message id="manage_phases_empty_subtitle">
        <source></source>
        <translation>Les phases découpent un long tableau en étapes.</translation>
    </message>
    <message id="manage_phases_empty_title">
        <source></source>
        <translation>Aucune phase pour l’instant</translation>
    </message>
    <message id="manage_phases_subtitle">
        <source></source>
        <translation>Chacune est un onglet du tableau. F2 renomme, Alt+↑↓ déplace, Suppr supprime.</translation>
    </message>
    <message id="manage_phases_title">
        <source></source>
        <translation>Phases</translation>
    </message>
    <message id="next_step_label">
        <source></source>
        <translation>Et maintenant ?</translation>
    </message>
    <message id="no_app_data_today">
        <source></source>
        <translation>Les applications apparaissent ici dès qu’une session les a mesurées</translation>
    </message>
    <message id="no_scores_today">
        <source></source>
        <translation>Aucune session notée aujourd’hui pour l’instant</translation>
    </message>
    <message id="no_sessions_today">
        <source></source>
        <translation>Aucune session terminée aujourd’hui pour l’instant</translation>
    </message>
    <message id="nothing_planned">
        <source></source>
        <translation>Rien de prévu</translation>
    </message>
    <message id="nothing_planned_subtitle">
        <source></source>
        <translation>Choisissez à quoi servira ce jour. Les tâches d’aujourd’hui rejoignent la file de Deep Work.</translation>
    </message>
    <message id="notice_browser_whitelisted">
        <source></source>
        <translation>%1 est maintenant sur la liste blanche des applications.</translation>
    </message>
    <message id="notice_close_button">
        <source></source>
        <translation>Fermer</translation>
    </message>
    <message id="notice_export_failed">
        <source></source>
        <translation>Les listes n’ont pas pu être enregistrées : %1</translation>
    </message>
    <message id="notice_exported">
        <source></source>
        <translation>Les listes ont été enregistrées sous %1.</translation>
    </message>
    <message id="notice_imported">
        <source></source>
        <translation>Les listes de %1 ont été importées.</translation>
    </message>
    <message id="notice_imported_nothing">
        <source></source>
        <translation>%1 ne contient rien que les listes n’aient déjà.</translation>
    </message>
    <message id="notice_site_added">
        <source></source>
        <translation>%1 a été ajouté.</translation>
    </message>
    <message id="notice_site_moved">
        <source></source>
        <translation>%1 a été déplacé sur l’autre liste.</translation>
    </message>
    <message id="notice_site_removed">
        <source></source>
        <translation>%1 a été retiré.</translation>
    </message>
    <message id="notice_sites_added" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n site a été ajouté.</numerusform>
            <numerusform>%n sites ont été ajoutés.</numerusform>
        </translation>
    </message>
    <message id="notice_sites_copied" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n élément de %1 a été copié.</numerusform>
            <numerusform>%n éléments de %1 ont été copiés.</numerusform>
        </translation>
    </message>
    <message id="notice_suggestions_added" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n suggestion a été ajoutée.</numerusform>
            <numerusform>%n suggestions ont été ajoutées.</numerusform>
        </translation>
    </message>
    <message id="notice_taken_back">
        <source></source>
        <translation>C’est annulé.</translation>
    </message>
    <message id="notif_break_complete_body">
        <source></source>
        <translation>Prêt pour la prochaine phase de travail ?</translation>
    </message>
    <message id="notif_break_complete_title">
        <source></source>
        <translation>Pause terminée</translation>
    </message>
    <message id="notif_rearming_complete_body">
        <source></source>
        <translation>L’esprit est clair. Lancez la prochaine phase de travail quand vous voulez.</translation>
    </message>
    <message id="notif_rearming_complete_title">
        <source></source>
        <translation>Réarmement terminé</translation>
    </message>
    <message id="notif_work_complete_body">
        <source></source>
        <translation>Bien joué. Place à une pause quand vous voulez.</translation>
    </message>
    <message id="notif_work_complete_title">
        <source></source>
        <translation>Phase de travail terminée</translation>
    </message>
    <message id="overview_tab">
        <source></source>
        <translation>Vue d’ensemble</translation>
    </message>
    <message id="palette_empty">
        <source></source>
        <translation>Rien ne porte ce nom.</translation>
    </message>
    <message id="palette_kind_project">
        <source></source>
        <translation>Projet</translation>
    </message>
    <message id="palette_kind_task">
        <source></source>
        <translation>Tâche</translation>
    </message>
    <message id="palette_open">
        <source></source>
        <translation>Tout rechercher (Ctrl+K)</translation>
    </message>
    <message id="palette_placeholder">
        <source></source>
        <translation>Aller à une page, une tâche ou un projet, ou agir</translation>
    </message>
    <message id="palette_results">
        <source></source>
        <translation>Résultats</translation>
    </message>
    <message id="panel_open_window">
        <source></source>
        <translation>Ouvrir Norvin Focus</translation>
    </message>
    <message id="panel_task_placeholder">
        <source></source>
        <translation>Ajouter une tâche</translation>
    </message>
    <message id="panel_title">
        <source></source>
        <translation>Panneau du minuteur</translation>
    </message>
    <message id="pause_button">
        <source></source>
        <translation>Pause</translation>
    </message>
    <message id="per_hour_today_subtitle">
        <source></source>
        <translation>Aujourd’hui, heure par heure</translation>
    </message>
    <message id="period_12_months_label">
        <source></source>
        <translation>Aujourd’hui et les 365 jours précédents</translation>
    </message>
    <message id="period_30_days_label">
        <source></source>
        <translation>Aujourd’hui et les 30 jours précédents</translation>
    </message>
    <message id="period_7_days_label">
        <source></source>
        <translation>Aujourd’hui et les 7 jours précédents</translation>
    </message>
    <message id="period_all">
        <source></source>
        <translation>Tout</translation>
    </message>
    <message id="period_all_time_label">
        <source></source>
        <translation>Tout ce qui est enregistré</translation>
    </message>
    <message id="period_month">
        <source></source>
        <translation>Mois</translation>
    </message>
    <message id="period_today">
        <source></source>
        <translation>Aujourd’hui</translation>
    </message>
    <message id="period_today_label">
        <source></source>
        <translation>Aujourd’hui</translation>
    </message>
    <message id="period_week">
        <source></source>
        <translation>Semaine</translation>
    </message>
    <message id="period_year">
        <source></source>
        <translation>Année</translation>
    </message>
    <message id="phase_add_button">
        <source></source>
        <translation>Ajouter</translation>
    </message>
    <message id="phase_break">
        <source></source>
        <translation>Pause</translation>
    </message>
    <message id="phase_delete_button">
        <source></source>
        <translation>Supprimer « %1 »</translation>
    </message>
    <message id="phase_idle">
        <source></source>
        <translation>Prêt à se concentrer</translation>
    </message>
    <message id="phase_name_label">
        <source></source>
        <translation>Nom de la phase</translation>
    </message>
    <message id="phase_placeholder">
        <source></source>
        <translation>Ajouter une phase</translation>
    </message>
    <message id="phase_rearming">
        <source></source>
        <translation>Réarmement</translation>
    </message>
    <message id="phase_remove_button">
        <source></source>
        <translation>Retirer « %1 »</translation>
    </message>
    <message id="phase_rename_button">
        <source></source>
        <translation>Renommer « %1 »</translation>
    </message>
    <message id="phase_row_name">
        <source></source>
        <translation>Phase %1</translation>
    </message>
    <message id="phase_work">
        <source></source>
        <translation>Phase de travail</translation>
    </message>
    <message id="phases_label">
        <source></source>
        <translation>Phases</translation>
    </message>
    <message id="pick_count" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n tâche ouverte</numerusform>
            <numerusform>%n tâches ouvertes</numerusform>
        </translation>
    </message>
    <message id="pick_list_name">
        <source></source>
        <translation>Tâches ouvertes</translation>
    </message>
    <message id="pick_no_tasks">
        <source></source>
        <translation>Il n’y a pas encore de tâche ouverte.</translation>
    </message>
    <message id="pick_none_button">
        <source></source>
        <translation>Choisir des tâches</translation>
    </message>
    <message id="pick_nothing_found">
        <source></source>
        <translation>Aucune tâche ouverte ne correspond.</translation>
    </message>
    <message id="pick_plan_button" numerus="yes">
        <source></source>
        <translation>
            <numerusform>Planifier %n tâche</numerusform>
            <numerusform>Planifier %n tâches</numerusform>
        </translation>
    </message>
    <message id="pick_search_placeholder">
        <source></source>
        <translation>Chercher dans toutes les tâches ouvertes</translation>
    </message>
    <message id="plan_for_day">
        <source></source>
        <translation>Prévoir un autre jour</translation>
    </message>
    <message id="plan_for_day_title">
        <source></source>
        <translation>Un jour pour « %1 »</translation>
    </message>
    <message id="plan_for_today">
        <source></source>
        <translation>Prévoir aujourd’hui</translation>
    </message>
    <message id="plan_task">
        <source></source>
        <translation>Planifier des tâches existantes</translation>
    </message>
    <message id="planning_day_label">
        <source></source>
        <translation>Jour</translation>
    </message>
    <message id="planning_export_button">
        <source></source>
        <translation>Exporter projets et tâches</translation>
    </message>
    <message id="planning_export_title">
        <source></source>
        <translation>Exporter projets et tâches</translation>
    </message>
    <message id="planning_exported_format">
        <source></source>
        <translation>Exporté vers %2 : %1.</translation>
    </message>
    <message id="planning_file_broken_line">
        <source></source>
        <translation>Ce n’est pas une ligne de calendrier : « %1 ».</translation>
    </message>
    <message id="planning_file_exists">
        <source></source>
        <translation>%1 existe déjà.</translation>
    </message>
    <message id="planning_file_line">
        <source></source>
        <translation>Ligne %1 : %2</translation>
    </message>
    <message id="planning_file_missing_member">
        <source></source>
        <translation>« %1 » manque.</translation>
    </message>
    <message id="planning_file_no_calendar">
        <source></source>
        <translation>Ce n’est pas un fichier iCalendar.</translation>
    </message>
    <message id="planning_file_no_plan">
        <source></source>
        <translation>Ce n’est pas un fichier de projets et de tâches.</translation>
    </message>
    <message id="planning_file_no_title">
        <source></source>
        <translation>La tâche n’a pas de titre.</translation>
    </message>
    <message id="planning_file_not_a_day">
        <source></source>
        <translation>« %1 » attend un jour comme 2025-03-10, et non « %2 ».</translation>
    </message>
    <message id="planning_file_not_a_list">
        <source></source>
        <translation>« %1 » doit être une liste, entre crochets.</translation>
    </message>
    <message id="planning_file_not_a_number">
        <source></source>
        <translation>« %1 » doit être un nombre entier.</translation>
    </message>
    <message id="planning_file_not_a_text">
        <source></source>
        <translation>« %1 » doit être un texte, entre guillemets.</translation>
    </message>
    <message id="planning_file_not_an_id">
        <source></source>
        <translation>« %1 » doit être un identifiant de 32 chiffres hexadécimaux avec traits d’union, et non « %2 ».</translation>
    </message>
    <message id="planning_file_not_an_instant">
        <source></source>
        <translation>« %1 » doit être un instant UTC au format ISO 8601, et non « %2 ».</translation>
    </message>
    <message id="planning_file_not_an_object">
        <source></source>
        <translation>Les entrées de « %1 » doivent être des objets, entre accolades.</translation>
    </message>
    <message id="planning_file_not_base64">
        <source></source>
        <translation>« %1 » doit contenir des données en base64.</translation>
    </message>
    <message id="planning_file_not_json">
        <source></source>
        <translation>Ce n’est pas du JSON valide (%1).</translation>
    </message>
    <message id="planning_file_not_utf8">
        <source></source>
        <translation>La ligne n’est pas en UTF-8.</translation>
    </message>
    <message id="planning_file_repeated_id">
        <source></source>
        <translation>L’identifiant « %1 » apparaît deux fois.</translation>
    </message>
    <message id="planning_file_repeated_member">
        <source></source>
        <translation>« %1 » apparaît deux fois.</translation>
    </message>
    <message id="planning_file_ring">
        <source></source>
        <translation>« %1 » serait une sous-tâche d’elle-même.</translation>
    </message>
    <message id="planning_file_too_large">
        <source></source>
        <translation>Le fichier est trop volumineux pour des projets et des tâches.</translation>
    </message>
    <message id="planning_file_unclosed">
        <source></source>
        <translation>« %1 » commence ici et ne finit pas.</translation>
    </message>
    <message id="planning_file_unknown_format">
        <source></source>
        <translation>« %1 » doit se terminer par .json, .txt ou .ics.</translation>
    </message>
    <message id="planning_file_unknown_member">
        <source></source>
        <translation>« %1 » n’est pas connu ici.</translation>
    </message>
    <message id="planning_file_unknown_phase">
        <source></source>
        <translation>Aucune phase n’a l’identifiant « %1 ».</translation>
    </message>
    <message id="planning_file_unknown_project">
        <source></source>
        <translation>Aucun projet n’a l’identifiant « %1 ».</translation>
    </message>
    <message id="planning_file_unknown_task">
        <source></source>
        <translation>Aucune tâche n’a l’identifiant « %1 ».</translation>
    </message>
    <message id="planning_file_unknown_zone">
        <source></source>
        <translation>Le fuseau horaire « %1 » n’est pas connu.</translation>
    </message>
    <message id="planning_file_unreadable">
        <source></source>
        <translation>Impossible de lire le fichier : %1</translation>
    </message>
    <message id="planning_file_unwritable">
        <source></source>
        <translation>Impossible d’écrire le fichier : %1</translation>
    </message>
    <message id="planning_file_wrong_value">
        <source></source>
        <translation>« %2 » n’est pas une valeur pour %1 ici.</translation>
    </message>
    <message id="planning_file_wrong_version">
        <source></source>
        <translation>La version « %1 » du fichier n’est pas connue ici ; un programme plus récent l’a peut-être écrit.</translation>
    </message>
    <message id="planning_filter_all">
        <source></source>
        <translation>Tout ce qui peut être lu</translation>
    </message>
    <message id="planning_filter_calendar">
        <source></source>
        <translation>iCalendar</translation>
    </message>
    <message id="planning_filter_json">
        <source></source>
        <translation>Toute la planification</translation>
    </message>
    <message id="planning_filter_todo">
        <source></source>
        <translation>Todo.txt</translation>
    </message>
    <message id="planning_import_button">
        <source></source>
        <translation>Importer projets et tâches</translation>
    </message>
    <message id="planning_import_ignored" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n autre élément du fichier n’est pas une tâche et a été laissé de côté.</numerusform>
            <numerusform>%n autres éléments du fichier ne sont pas des tâches et ont été laissés de côté.</numerusform>
        </translation>
    </message>
    <message id="planning_import_there_format">
        <source></source>
        <translation>Déjà présent et laissé tel quel : %1.</translation>
    </message>
    <message id="planning_import_title">
        <source></source>
        <translation>Importer projets et tâches</translation>
    </message>
    <message id="planning_imported_format">
        <source></source>
        <translation>Importé : %1.</translation>
    </message>
    <message id="planning_imported_nothing">
        <source></source>
        <translation>Il n’y avait rien de nouveau à importer.</translation>
    </message>
    <message id="planning_sheet_title">
        <source></source>
        <translation>Planifier : %1</translation>
    </message>
    <message id="planning_tab_existing">
        <source></source>
        <translation>Tâches existantes</translation>
    </message>
    <message id="planning_tab_new">
        <source></source>
        <translation>Nouvelle tâche</translation>
    </message>
    <message id="planning_tabs_name">
        <source></source>
        <translation>Que planifier</translation>
    </message>
    <message id="preferences_around_title">
        <source></source>
        <translation>Pendant une session</translation>
    </message>
    <message id="preferences_data_tab">
        <source></source>
        <translation>Données</translation>
    </message>
    <message id="preferences_feedback_title">
        <source></source>
        <translation>Vos idées</translation>
    </message>
    <message id="preferences_general_tab">
        <source></source>
        <translation>Général</translation>
    </message>
    <message id="preferences_inactivity_title">
        <source></source>
        <translation>Inactivité</translation>
    </message>
    <message id="preferences_licence_title">
        <source></source>
        <translation>Licence</translation>
    </message>
    <message id="preferences_lists_button">
        <source></source>
        <translation>Ouvrir les listes</translation>
    </message>
    <message id="preferences_lists_hint">
        <source></source>
        <translation>Applications et sites bloqués, ou comptés comme travail.</translation>
    </message>
    <message id="preferences_lists_label">
        <source></source>
        <translation>Listes de blocage</translation>
    </message>
    <message id="preferences_phases_text">
        <source></source>
        <translation>Ces durées sont fixes. Celle d’une phase de travail peut être choisie à chaque session.</translation>
    </message>
    <message id="preferences_phases_title">
        <source></source>
        <translation>Phases</translation>
    </message>
    <message id="preferences_program_tab">
        <source></source>
        <translation>Programme</translation>
    </message>
    <message id="preferences_session_tab">
        <source></source>
        <translation>Sessions</translation>
    </message>
    <message id="preferences_sound_tab">
        <source></source>
        <translation>Sons</translation>
    </message>
    <message id="preferences_start_title">
        <source></source>
        <translation>Démarrage</translation>
    </message>
    <message id="preferences_subtitle">
        <source></source>
        <translation>Ce que vous changez ici compte aussitôt.</translation>
    </message>
    <message id="preferences_subtitle_named">
        <source></source>
        <translation>Bonjour %1. Ce que vous changez ici compte aussitôt.</translation>
    </message>
    <message id="preferences_title">
        <source></source>
        <translation>Préférences</translation>
    </message>
    <message id="preferences_updates_title">
        <source></source>
        <translation>Mises à jour</translation>
    </message>
    <message id="preferences_you_title">
        <source></source>
        <translation>Vous</translation>
    </message>
    <message id="priority_high">
        <source></source>
        <translation>Haute</translation>
    </message>
    <message id="priority_low">
        <source></source>
        <translation>Basse</translation>
    </message>
    <message id="priority_medium">
        <source></source>
        <translation>Moyenne</translation>
    </message>
    <message id="profile_name_hint">
        <source></source>
        <translation>Le programme vous salue par ce nom ; il reste sur cet ordinateur.</translation>
    </message>
    <message id="profile_name_label">
        <source></source>
        <translation>Votre nom</translation>
    </message>
    <message id="profile_name_placeholder">
        <source></source>
        <translation>Aucun</translation>
    </message>
    <message id="project_color_label">
        <source></source>
        <translation>Couleur</translation>
    </message>
    <message id="project_color_name">
        <source></source>
        <translation>%1, %2 sur %3</translation>
    </message>
    <message id="project_count" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n projet</numerusform>
            <numerusform>%n projets</numerusform>
        </translation>
    </message>
    <message id="project_delete_button">
        <source></source>
        <translation>Supprimer le projet</translation>
    </message>
    <message id="project_description_label">
        <source></source>
        <translation>Description</translation>
    </message>
    <message id="project_description_placeholder">
        <source></source>
        <translation>De quoi s’agit-il ?</translation>
    </message>
    <message id="project_discard_button">
        <source></source>
        <translation>Fermer</translation>
    </message>
    <message id="project_discard_message">
        <source></source>
        <translation>Ce que vous avez modifié ici n’est pas encore enregistré.</translation>
    </message>
    <message id="project_discard_title">
        <source></source>
        <translation>Fermer sans enregistrer ?</translation>
    </message>
    <message id="project_icon_label">
        <source></source>
        <translation>Icône</translation>
    </message>
    <message id="project_icon_name">
        <source></source>
        <translation>Icône %1 sur %2</translation>
    </message>
    <message id="project_keep_button">
        <source></source>
        <translation>Continuer</translation>
    </message>
    <message id="project_keys_hint">
        <source></source>
        <translation>Ctrl+Entrée enregistre</translation>
    </message>
    <message id="project_more_button">
        <source></source>
        <translation>Que faire de « %1 »</translation>
    </message>
    <message id="project_name_label">
        <source></source>
        <translation>Nom</translation>
    </message>
    <message id="project_name_placeholder">
        <source></source>
        <translation>Comment s’appelle-t-il ?</translation>
    </message>
    <message id="project_new_button">
        <source></source>
        <translation>Nouveau projet</translation>
    </message>
    <message id="project_no_tasks">
        <source></source>
        <translation>Aucune tâche</translation>
    </message>
    <message id="project_open_button">
        <source></source>
        <translation>Ouvrir le tableau</translation>
    </message>
    <message id="project_progress" numerus="yes">
        <source></source>
        <translation>
            <numerusform>Tâche terminée : %1 sur %n</numerusform>
            <numerusform>Tâches terminées : %1 sur %n</numerusform>
        </translation>
    </message>
    <message id="project_search_placeholder">
        <source></source>
        <translation>Rechercher un projet</translation>
    </message>
    <message id="project_sort_created">
        <source></source>
        <translation>Récents</translation>
    </message>
    <message id="project_sort_label">
        <source></source>
        <translation>Trier par</translation>
    </message>
    <message id="project_sort_name">
        <source></source>
        <translation>Nom</translation>
    </message>
    <message id="project_sort_progress">
        <source></source>
        <translation>Avancement</translation>
    </message>
    <message id="projects_count_plural" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n projet</numerusform>
            <numerusform>%n projets</numerusform>
        </translation>
    </message>
    <message id="projects_empty_subtitle">
        <source></source>
        <translation>Un projet rassemble les tâches d’une même entreprise, les pose sur un tableau et montre où vous en êtes.</translation>
    </message>
    <message id="projects_empty_title">
        <source></source>
        <translation>Aucun projet pour l’instant</translation>
    </message>
    <message id="projects_no_match_subtitle">
        <source></source>
        <translation>Rien dans les noms et les descriptions ne ressemble à « %1 ».</translation>
    </message>
    <message id="projects_no_match_title">
        <source></source>
        <translation>Aucun projet ne correspond</translation>
    </message>
    <message id="projects_subtitle">
        <source></source>
        <translation>Un projet rassemble des tâches sur son propre tableau.</translation>
    </message>
    <message id="projects_title">
        <source></source>
        <translation>Projets</translation>
    </message>
    <message id="queue_empty_subtitle">
        <source></source>
        <translation>Écrivez ce que vous voulez accomplir, puis Entrée. Il ne reste qu’à démarrer.</translation>
    </message>
    <message id="queue_empty_title">
        <source></source>
        <translation>Pas encore de tâche</translation>
    </message>
    <message id="queue_keys_hint">
        <source></source>
        <translation>Entrée : s’y mettre · Ctrl+Entrée : cocher · + : sous-tâche · Alt+↑↓ : déplacer · Suppr : retirer</translation>
    </message>
    <message id="queued_tasks" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n tâche dans la file</numerusform>
            <numerusform>%n tâches dans la file</numerusform>
        </translation>
    </message>
    <message id="quick_add_added">
        <source></source>
        <translation>« %1 » a été ajoutée · %2</translation>
    </message>
    <message id="quick_add_button">
        <source></source>
        <translation>Ajouter</translation>
    </message>
    <message id="quick_add_help">
        <source></source>
        <translation>! priorité · # projet · @ phase · un jour, ou « avant » et un jour. Une barre oblique inverse (\) garde un mot dans le titre.</translation>
    </message>
    <message id="quick_add_hint">
        <source></source>
        <translation>!haute Rédiger le rapport #Thèse @Brouillon demain avant le 12 décembre</translation>
    </message>
    <message id="quick_add_name">
        <source></source>
        <translation>Nouvelle tâche</translation>
    </message>
    <message id="quick_add_needs_title">
        <source></source>
        <translation>Il faut un titre à la tâche, en plus de ces mots.</translation>
    </message>
    <message id="quick_add_placeholder">
        <source></source>
        <translation>Ajouter une tâche à ce jour, puis Entrée</translation>
    </message>
    <message id="quit_button">
        <source></source>
        <translation>Quitter</translation>
    </message>
    <message id="quit_cancel_button">
        <source></source>
        <translation>Continuer</translation>
    </message>
    <message id="quit_message">
        <source></source>
        <translation>Une phase est en cours. Si vous quittez maintenant, elle s’arrête et n’est pas enregistrée. En fermant seulement la fenêtre, elle continue.</translation>
    </message>
    <message id="quit_title">
        <source></source>
        <translation>Quitter et perdre la session ?</translation>
    </message>
    <message id="quoted_format">
        <source></source>
        <translation>« %1 »</translation>
    </message>
    <message id="ready_to_start_subtitle">
        <source></source>
        <translation>Tout est prêt : lancez-en une depuis la page Deep Work</translation>
    </message>
    <message id="rearming_button">
        <source></source>
        <translation>Se réarmer</translation>
    </message>
    <message id="rearming_subtitle">
        <source></source>
        <translation>Un moment pour remettre de l’ordre avant la prochaine phase de travail. Rien n’est mesuré ni bloqué.</translation>
    </message>
    <message id="refresh_data_help">
        <source></source>
        <translation>Relire les enregistrements</translation>
    </message>
    <message id="refused_app_empty">
        <source></source>
        <translation>Indiquez une application.</translation>
    </message>
    <message id="refused_day_unknown">
        <source></source>
        <translation>« %1 » n’est pas un jour. Indiquez-le comme 2025-03-10, today ou tomorrow.</translation>
    </message>
    <message id="refused_licence_over">
        <source></source>
        <translation>La licence n’est plus valable : une nouvelle session en demande une autre.</translation>
    </message>
    <message id="refused_no_projects">
        <source></source>
        <translation>Aucun projet ne s’appelle « %1 » ; il n’y en a pas encore.</translation>
    </message>
    <message id="refused_path_not_absolute">
        <source></source>
        <translation>« %1 » n’est pas le chemin complet d’un fichier.</translation>
    </message>
    <message id="refused_pause_not_running">
        <source></source>
        <translation>Rien n’est en cours, il n’y a rien à mettre en pause.</translation>
    </message>
    <message id="refused_period_unknown">
        <source></source>
        <translation>La période « %1 » n’existe pas : choisissez today, week, month, year ou all.</translation>
    </message>
    <message id="refused_priority_unknown">
        <source></source>
        <translation>La priorité est low, medium ou high, et non « %1 ».</translation>
    </message>
    <message id="refused_project_ambiguous">
        <source></source>
        <translation>Plusieurs projets s’appellent « %1 » : %2. Indiquez le début de l’identifiant.</translation>
    </message>
    <message id="refused_project_unknown">
        <source></source>
        <translation>Aucun projet ne s’appelle « %1 ». Il y a : %2.</translation>
    </message>
    <message id="refused_records_unreadable">
        <source></source>
        <translation>Impossible de lire les enregistrements : %1</translation>
    </message>
    <message id="refused_resume_not_paused">
        <source></source>
        <translation>Rien n’est en pause, il n’y a rien à reprendre.</translation>
    </message>
    <message id="refused_site_invalid">
        <source></source>
        <translation>Ce n’est pas l’adresse d’un site. Donnez un domaine, par exemple example.org.</translation>
    </message>
    <message id="refused_start_already_running">
        <source></source>
        <translation>Une phase est déjà en cours. Arrêtez-la avant d’en lancer une autre.</translation>
    </message>
    <message id="refused_stop_nothing_runs">
        <source></source>
        <translation>Rien n’est en cours, il n’y a rien à arrêter.</translation>
    </message>
    <message id="refused_task_already_done">
        <source></source>
        <translation>« %1 » est déjà terminée.</translation>
    </message>
    <message id="refused_task_ambiguous">
        <source></source>
        <translation>Plusieurs tâches ont un identifiant commençant par « %1 » : %2.</translation>
    </message>
    <message id="refused_task_id">
        <source></source>
        <translation>« %1 » n’est pas un identifiant. Un identifiant a quatre chiffres hexadécimaux ou plus.</translation>
    </message>
    <message id="refused_task_title_empty">
        <source></source>
        <translation>Une tâche a besoin d’un titre.</translation>
    </message>
    <message id="refused_task_unknown">
        <source></source>
        <translation>Aucune tâche n’a d’identifiant commençant par « %1 ».</translation>
    </message>
    <message id="refused_trial_over">
        <source></source>
        <translation>L’essai est terminé : une nouvelle session demande une licence.</translation>
    </message>
    <message id="resource_missing">
        <source></source>
        <translation>Le fichier est introuvable</translation>
    </message>
    <message id="resource_missing_name">
        <source></source>
        <translation>%1, le fichier est introuvable</translation>
    </message>
    <message id="resource_open">
        <source></source>
        <translation>Ouvrir %1</translation>
    </message>
    <message id="resource_remove">
        <source></source>
        <translation>Retirer %1 de la tâche</translation>
    </message>
    <message id="resources_add_button">
        <source></source>
        <translation>Joindre un fichier</translation>
    </message>
    <message id="resources_all_files">
        <source></source>
        <translation>Tous les fichiers</translation>
    </message>
    <message id="resources_choose_title">
        <source></source>
        <translation>Joindre des fichiers</translation>
    </message>
    <message id="resources_drop_here">
        <source></source>
        <translation>Déposez des fichiers ici. Ils restent où ils sont.</translation>
    </message>
    <message id="resources_drop_now">
        <source></source>
        <translation>Relâchez pour joindre</translation>
    </message>
    <message id="resources_title">
        <source></source>
        <translation>Fichiers</translation>
    </message>
    <message id="restore_button">
        <source></source>
        <translation>Restaurer et redémarrer</translation>
    </message>
    <message id="restore_message">
        <source></source>
        <translation>Tout revient à l’état du %1 (%2). Ce qu’il y a maintenant est d’abord sauvegardé, pour que vous puissiez y revenir. Le programme redémarre.</translation>
    </message>
    <message id="restore_open_button">
        <source></source>
        <translation>Restaurer…</translation>
    </message>
    <message id="restore_title">
        <source></source>
        <translation>Restaurer cette sauvegarde ?</translation>
    </message>
    <message id="resume_button">
        <source></source>
        <translation>Reprendre</translation>
    </message>
    <message id="ring_idle">
        <source></source>
        <translation>prévu</translation>
    </message>
    <message id="ring_paused">
        <source></source>
        <translation>en pause</translation>
    </message>
    <message id="ring_running">
        <source></source>
        <translation>restant</translation>
    </message>
    <message id="save_project_action">
        <source></source>
        <translation>Enregistrer</translation>
    </message>
    <message id="score_evolution_title">
        <source></source>
        <translation>Score de focus, session après session</translation>
    </message>
    <message id="score_hide_terms">
        <source></source>
        <translation>Masquer l’explication</translation>
    </message>
    <message id="score_label">
        <source></source>
        <translation>Score de focus</translation>
    </message>
    <message id="score_maximum">
        <source></source>
        <translation>/ 10</translation>
    </message>
    <message id="score_not_enough_data">
        <source></source>
        <translation>Pas encore assez de données : il faut 10 secondes mesurées.</translation>
    </message>
    <message id="score_show_terms">
        <source></source>
        <translation>Expliquer le score</translation>
    </message>
    <message id="score_term_app_attempts" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n tentative d’ouvrir une application bloquée</numerusform>
            <numerusform>%n tentatives d’ouvrir une application bloquée</numerusform>
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
        <translation>%1 % du temps mesuré était légitime</translation>
    </message>
    <message id="score_term_site_attempts" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n tentative d’ouvrir un site bloqué</numerusform>
            <numerusform>%n tentatives d’ouvrir un site bloqué</numerusform>
        </translation>
    </message>
    <message id="score_term_subtasks" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n sous-tâche terminée</numerusform>
            <numerusform>%n sous-tâches terminées</numerusform>
        </translation>
    </message>
    <message id="score_term_tasks" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n tâche terminée</numerusform>
            <numerusform>%n tâches terminées</numerusform>
        </translation>
    </message>
    <message id="score_term_total">
        <source></source>
        <translation>Score, ramené entre 0 et 10</translation>
    </message>
    <message id="session_change_task_button">
        <source></source>
        <translation>Changer de tâche…</translation>
    </message>
    <message id="session_delete_button">
        <source></source>
        <translation>Supprimer cette session</translation>
    </message>
    <message id="session_detail_title">
        <source></source>
        <translation>Session</translation>
    </message>
    <message id="session_score_missing">
        <source></source>
        <translation>Aucun score n’a été enregistré avec cette session.</translation>
    </message>
    <message id="session_score_not_measured" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n seconde a été mesurée ; il en faut au moins 10 pour un score.</numerusform>
            <numerusform>%n secondes ont été mesurées ; il en faut au moins 10 pour un score.</numerusform>
        </translation>
    </message>
    <message id="session_score_remainder">
        <source></source>
        <translation>Hors de l’enregistrement : tâches et sous-tâches terminées, et les limites 0 et 10</translation>
    </message>
    <message id="session_score_title">
        <source></source>
        <translation>Comment le score s’est formé</translation>
    </message>
    <message id="session_subtitle">
        <source></source>
        <translation>en minutes, chaque session à l’heure où elle a commencé</translation>
    </message>
    <message id="session_task_nothing_found">
        <source></source>
        <translation>Aucune tâche ne correspond.</translation>
    </message>
    <message id="session_task_search_placeholder">
        <source></source>
        <translation>Chercher une tâche ou un projet</translation>
    </message>
    <message id="session_task_title">
        <source></source>
        <translation>Tâche de la session</translation>
    </message>
    <message id="sessions_completed_subtitle">
        <source></source>
        <translation>mesurée pendant les sessions</translation>
    </message>
    <message id="sheet_close_button">
        <source></source>
        <translation>Fermer</translation>
    </message>
    <message id="sheet_done_button">
        <source></source>
        <translation>Terminé</translation>
    </message>
    <message id="sidebar_agenda">
        <source></source>
        <translation>Agenda</translation>
    </message>
    <message id="sidebar_block_lists">
        <source></source>
        <translation>Listes de blocage</translation>
    </message>
    <message id="sidebar_deep_work">
        <source></source>
        <translation>Deep Work</translation>
    </message>
    <message id="sidebar_health">
        <source></source>
        <translation>État du suivi</translation>
    </message>
    <message id="sidebar_label">
        <source></source>
        <translation>Pages</translation>
    </message>
    <message id="sidebar_projects">
        <source></source>
        <translation>Projets</translation>
    </message>
    <message id="sidebar_statistics">
        <source></source>
        <translation>Statistiques</translation>
    </message>
    <message id="site_add_button">
        <source></source>
        <translation>Ajouter</translation>
    </message>
    <message id="site_covered">
        <source></source>
        <translation>Déjà compris dans %1</translation>
    </message>
    <message id="site_entry_hint">
        <source></source>
        <translation>Pas encore sur cette liste. Entrée l’ajoute.</translation>
    </message>
    <message id="site_entry_listed_already">
        <source></source>
        <translation>Déjà sur la liste : %1</translation>
    </message>
    <message id="site_entry_name">
        <source></source>
        <translation>%1 : ajouter des sites ou chercher</translation>
    </message>
    <message id="site_entry_placeholder">
        <source></source>
        <translation>Ajouter des sites ou chercher</translation>
    </message>
    <message id="site_entry_refused">
        <source></source>
        <translation>Ce n’est pas un site : %1</translation>
    </message>
    <message id="site_move">
        <source></source>
        <translation>Déplacer %1 sur l’autre liste</translation>
    </message>
    <message id="site_on_both_lists">
        <source></source>
        <translation>Sur les deux listes : son temps est légitime, son onglet est fermé</translation>
    </message>
    <message id="site_remove">
        <source></source>
        <translation>Retirer %1</translation>
    </message>
    <message id="site_test_hint">
        <source></source>
        <translation>La réponse nomme la règle qui décide.</translation>
    </message>
    <message id="site_test_placeholder">
        <source></source>
        <translation>Ce site compterait-il dans %1 ? Tapez ou collez une adresse</translation>
    </message>
    <message id="sites_blocked_note">
        <source></source>
        <translation>Leur onglet est fermé, même s’ils sont aussi en liste blanche.</translation>
    </message>
    <message id="sites_blocked_title">
        <source></source>
        <translation>Sites bloqués</translation>
    </message>
    <message id="sites_copy_button">
        <source></source>
        <translation>Copier aux autres</translation>
    </message>
    <message id="sites_copy_name">
        <source></source>
        <translation>Copier les sites de %1 aux autres navigateurs</translation>
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
        <translation>Aucun site pour l’instant</translation>
    </message>
    <message id="sites_no_whitelist_note">
        <source></source>
        <translation>Tant que cette liste est vide, tout site compte comme légitime, sauf s’il est bloqué.</translation>
    </message>
    <message id="sites_subtitle">
        <source></source>
        <translation>Les sites comptent par navigateur. Pendant une phase de travail, l’onglet d’un site bloqué est fermé, sous-domaines compris.</translation>
    </message>
    <message id="sites_tab">
        <source></source>
        <translation>Sites</translation>
    </message>
    <message id="sites_whitelist_mode_note">
        <source></source>
        <translation>Tout le reste compte comme distrait dans ce navigateur.</translation>
    </message>
    <message id="sites_whitelisted_title">
        <source></source>
        <translation>Sites en liste blanche</translation>
    </message>
    <message id="space_hint">
        <source></source>
        <translation>Espace pour démarrer, mettre en pause et reprendre</translation>
    </message>
    <message id="start_button">
        <source></source>
        <translation>Démarrer</translation>
    </message>
    <message id="stats_explain_hint">
        <source></source>
        <translation>Montre les enregistrements correspondants</translation>
    </message>
    <message id="stats_export_busy_format">
        <source></source>
        <translation>Écriture de « %1 »…</translation>
    </message>
    <message id="stats_export_button">
        <source></source>
        <translation>Exporter les statistiques</translation>
    </message>
    <message id="stats_export_cancelled_format">
        <source></source>
        <translation>Annulé ; « %1 » n’a pas été écrit.</translation>
    </message>
    <message id="stats_export_document">
        <source></source>
        <translation>Page en PDF…</translation>
    </message>
    <message id="stats_export_document_title">
        <source></source>
        <translation>Enregistrer la page comme document PDF</translation>
    </message>
    <message id="stats_export_done_format">
        <source></source>
        <translation>Enregistré : %1</translation>
    </message>
    <message id="stats_export_done_records_format">
        <source></source>
        <translation>Enregistré avec %2 : %1</translation>
    </message>
    <message id="stats_export_failed_format">
        <source></source>
        <translation>Impossible d’écrire « %1 » : %2</translation>
    </message>
    <message id="stats_export_json">
        <source></source>
        <translation>Tout en JSON…</translation>
    </message>
    <message id="stats_export_json_title">
        <source></source>
        <translation>Exporter les sessions et l’usage des applications de la période</translation>
    </message>
    <message id="stats_export_no_picture">
        <source></source>
        <translation>aucune image de la page n’a pu être prise.</translation>
    </message>
    <message id="stats_export_picture">
        <source></source>
        <translation>Page en image…</translation>
    </message>
    <message id="stats_export_picture_title">
        <source></source>
        <translation>Enregistrer la page comme image</translation>
    </message>
    <message id="stats_export_sessions">
        <source></source>
        <translation>Sessions en CSV…</translation>
    </message>
    <message id="stats_export_sessions_title">
        <source></source>
        <translation>Exporter les sessions de la période</translation>
    </message>
    <message id="stats_export_unsaved_format">
        <source></source>
        <translation>« %1 » n’a pas été écrit : les derniers enregistrements ne peuvent pas être sauvegardés. %2</translation>
    </message>
    <message id="stats_export_usage">
        <source></source>
        <translation>Applications en CSV…</translation>
    </message>
    <message id="stats_export_usage_title">
        <source></source>
        <translation>Exporter l’usage des applications de la période</translation>
    </message>
    <message id="stats_filter_csv">
        <source></source>
        <translation>Tableaux</translation>
    </message>
    <message id="stats_filter_document">
        <source></source>
        <translation>Documents PDF</translation>
    </message>
    <message id="stats_filter_json">
        <source></source>
        <translation>Fichiers JSON</translation>
    </message>
    <message id="stats_filter_picture">
        <source></source>
        <translation>Images</translation>
    </message>
    <message id="stats_introduction">
        <source></source>
        <translation>Cliquez sur un chiffre, une barre ou une ligne pour voir les enregistrements qui le composent.</translation>
    </message>
    <message id="stats_paper_date_format">
        <source></source>
        <translation>État au %1, %2</translation>
    </message>
    <message id="stats_paper_page_format">
        <source></source>
        <translation>Page %1 sur %2</translation>
    </message>
    <message id="stats_paper_title">
        <source></source>
        <translation>Statistiques de concentration</translation>
    </message>
    <message id="stats_period_label">
        <source></source>
        <translation>Période</translation>
    </message>
    <message id="stats_problem">
        <source></source>
        <translation>Impossible de lire les enregistrements : %1</translation>
    </message>
    <message id="stats_tabs_label">
        <source></source>
        <translation>Page de statistiques</translation>
    </message>
    <message id="stats_title">
        <source></source>
        <translation>Statistiques</translation>
    </message>
    <message id="stats_waiting">
        <source></source>
        <translation>Lecture des enregistrements</translation>
    </message>
    <message id="stop_button">
        <source></source>
        <translation>Arrêter</translation>
    </message>
    <message id="store_problem_banner">
        <source></source>
        <translation>Vos changements ne peuvent pas être enregistrés pour le moment : %1</translation>
    </message>
    <message id="subtask_add">
        <source></source>
        <translation>Ajouter une sous-tâche à « %1 »</translation>
    </message>
    <message id="subtask_delete">
        <source></source>
        <translation>Supprimer %1</translation>
    </message>
    <message id="subtask_of">
        <source></source>
        <translation>Sous-tâche de « %1 »</translation>
    </message>
    <message id="subtask_placeholder">
        <source></source>
        <translation>Sous-tâche, puis Entrée</translation>
    </message>
    <message id="subtask_rename">
        <source></source>
        <translation>Renommer %1</translation>
    </message>
    <message id="subtasks_done">
        <source></source>
        <translation>%1/%2 sous-tâches</translation>
    </message>
    <message id="subtasks_keys_hint">
        <source></source>
        <translation>Espace coche · F2 renomme · + ajoute dessous · Alt+↑↓ déplace</translation>
    </message>
    <message id="subtasks_title">
        <source></source>
        <translation>Sous-tâches</translation>
    </message>
    <message id="suggestions_add_button" numerus="yes">
        <source></source>
        <translation>
            <numerusform>Ajouter %n élément</numerusform>
            <numerusform>Ajouter %n éléments</numerusform>
        </translation>
    </message>
    <message id="suggestions_add_none_button">
        <source></source>
        <translation>Ajouter ce qui est choisi</translation>
    </message>
    <message id="suggestions_browsers">
        <source></source>
        <translation>Navigateurs</translation>
    </message>
    <message id="suggestions_dismiss_button">
        <source></source>
        <translation>Ne plus rien suggérer</translation>
    </message>
    <message id="suggestions_group_name">
        <source></source>
        <translation>%1 : tout pour la liste « %2 »</translation>
    </message>
    <message id="suggestions_sites">
        <source></source>
        <translation>Sites : %1</translation>
    </message>
    <message id="suggestions_subtitle">
        <source></source>
        <translation>Rien n’est encore sur une liste. Choisissez ce qui convient à votre travail : rien n’est ajouté sans votre accord, et tout peut être changé plus tard.</translation>
    </message>
    <message id="suggestions_tab">
        <source></source>
        <translation>Suggestions</translation>
    </message>
    <message id="summary_attempts">
        <source></source>
        <translation>Tentatives bloquées</translation>
    </message>
    <message id="summary_interruptions">
        <source></source>
        <translation>Interruptions</translation>
    </message>
    <message id="summary_tasks">
        <source></source>
        <translation>Tâches terminées</translation>
    </message>
    <message id="tab_history">
        <source></source>
        <translation>Historique</translation>
    </message>
    <message id="tab_today">
        <source></source>
        <translation>Aujourd’hui</translation>
    </message>
    <message id="task_active_name">
        <source></source>
        <translation>%1, en cours</translation>
    </message>
    <message id="task_clear_day">
        <source></source>
        <translation>Effacer la date : %1</translation>
    </message>
    <message id="task_create_button">
        <source></source>
        <translation>Créer la tâche</translation>
    </message>
    <message id="task_create_hint">
        <source></source>
        <translation>Nouvelle tâche : « %1 »</translation>
    </message>
    <message id="task_create_keys_hint">
        <source></source>
        <translation>Entrée crée la tâche. Sous-tâches et fichiers s’ajoutent une fois qu’elle existe.</translation>
    </message>
    <message id="task_delete_button">
        <source></source>
        <translation>Supprimer cette tâche</translation>
    </message>
    <message id="task_description_placeholder">
        <source></source>
        <translation>Notes</translation>
    </message>
    <message id="task_detail_title">
        <source></source>
        <translation>Tâche</translation>
    </message>
    <message id="task_done_name">
        <source></source>
        <translation>%1, terminée</translation>
    </message>
    <message id="task_due_label">
        <source></source>
        <translation>Échéance</translation>
    </message>
    <message id="task_field_placeholder">
        <source></source>
        <translation>Saisir ou choisir une tâche</translation>
    </message>
    <message id="task_is_late">
        <source></source>
        <translation>en retard</translation>
    </message>
    <message id="task_late_mark">
        <source></source>
        <translation>En retard</translation>
    </message>
    <message id="task_make_active">
        <source></source>
        <translation>Travailler sur « %1 »</translation>
    </message>
    <message id="task_menu_done">
        <source></source>
        <translation>Marquer comme terminée</translation>
    </message>
    <message id="task_move_down">
        <source></source>
        <translation>Descendre « %1 »</translation>
    </message>
    <message id="task_move_up">
        <source></source>
        <translation>Monter « %1 »</translation>
    </message>
    <message id="task_new_title">
        <source></source>
        <translation>Nouvelle tâche</translation>
    </message>
    <message id="task_no_day">
        <source></source>
        <translation>Aucune date</translation>
    </message>
    <message id="task_no_phase">
        <source></source>
        <translation>Aucune phase</translation>
    </message>
    <message id="task_no_project">
        <source></source>
        <translation>Aucun projet</translation>
    </message>
    <message id="task_open_detail">
        <source></source>
        <translation>Ouvrir la tâche</translation>
    </message>
    <message id="task_open_sheet">
        <source></source>
        <translation>Voir et modifier %1</translation>
    </message>
    <message id="task_phase_label">
        <source></source>
        <translation>Phase</translation>
    </message>
    <message id="task_planned_label">
        <source></source>
        <translation>Prévue pour</translation>
    </message>
    <message id="task_priority_label">
        <source></source>
        <translation>Priorité</translation>
    </message>
    <message id="task_project_label">
        <source></source>
        <translation>Projet</translation>
    </message>
    <message id="task_remove">
        <source></source>
        <translation>Retirer « %1 » de la file</translation>
    </message>
    <message id="task_reopen">
        <source></source>
        <translation>Rouvrir « %1 »</translation>
    </message>
    <message id="task_sessions_none">
        <source></source>
        <translation>Aucune pour l’instant</translation>
    </message>
    <message id="task_sessions_title">
        <source></source>
        <translation>Sessions de concentration</translation>
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
        <translation>Voir la tâche parente : %1</translation>
    </message>
    <message id="task_status_done">
        <source></source>
        <translation>Terminée</translation>
    </message>
    <message id="task_status_done_short">
        <source></source>
        <translation>Finie</translation>
    </message>
    <message id="task_status_in_progress">
        <source></source>
        <translation>En cours</translation>
    </message>
    <message id="task_status_in_progress_short">
        <source></source>
        <translation>En cours</translation>
    </message>
    <message id="task_status_label">
        <source></source>
        <translation>Statut</translation>
    </message>
    <message id="task_status_todo">
        <source></source>
        <translation>À faire</translation>
    </message>
    <message id="task_status_todo_short">
        <source></source>
        <translation>À faire</translation>
    </message>
    <message id="task_suggestions">
        <source></source>
        <translation>Tâches à choisir</translation>
    </message>
    <message id="task_tick">
        <source></source>
        <translation>Cocher « %1 »</translation>
    </message>
    <message id="task_title_placeholder">
        <source></source>
        <translation>Que faut-il faire ?</translation>
    </message>
    <message id="tasks_completed_format">
        <source></source>
        <translation>Terminées : %1 sur %2</translation>
    </message>
    <message id="tasks_count" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n tâche</numerusform>
            <numerusform>%n tâches</numerusform>
        </translation>
    </message>
    <message id="tasks_count_format" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n tâche</numerusform>
            <numerusform>%n tâches</numerusform>
        </translation>
    </message>
    <message id="tasks_title">
        <source></source>
        <translation>Tâches</translation>
    </message>
    <message id="tasks_today" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n tâche aujourd’hui</numerusform>
            <numerusform>%n tâches aujourd’hui</numerusform>
        </translation>
    </message>
    <message id="tick_sounds_button_off">
        <source></source>
        <translation>Tic-tac : désactivé (Ctrl+T)</translation>
    </message>
    <message id="tick_sounds_button_on">
        <source></source>
        <translation>Tic-tac : activé (Ctrl+T)</translation>
    </message>
    <message id="tick_sounds_done_button">
        <source></source>
        <translation>Terminé</translation>
    </message>
    <message id="tick_sounds_sample_button">
        <source></source>
        <translation>Écouter un extrait</translation>
    </message>
    <message id="tick_sounds_subtitle">
        <source></source>
        <translation>Un tic par seconde pendant une session</translation>
    </message>
    <message id="tick_sounds_switch">
        <source></source>
        <translation>Tic-tac pendant une session</translation>
    </message>
    <message id="tick_sounds_title">
        <source></source>
        <translation>Tic-tac</translation>
    </message>
    <message id="tick_sounds_type_label">
        <source></source>
        <translation>Timbre</translation>
    </message>
    <message id="tick_sounds_volume">
        <source></source>
        <translation>Volume</translation>
    </message>
    <message id="tick_sounds_volume_value">
        <source></source>
        <translation>%1 %</translation>
    </message>
    <message id="tick_type_clock">
        <source></source>
        <translation>Horloge</translation>
    </message>
    <message id="tick_type_clock_hint">
        <source></source>
        <translation>Tic et tac en alternance</translation>
    </message>
    <message id="tick_type_digital">
        <source></source>
        <translation>Numérique</translation>
    </message>
    <message id="tick_type_digital_hint">
        <source></source>
        <translation>Bref et régulier</translation>
    </message>
    <message id="tick_type_metronome">
        <source></source>
        <translation>Métronome</translation>
    </message>
    <message id="tick_type_metronome_hint">
        <source></source>
        <translation>Net, aigu et grave en alternance</translation>
    </message>
    <message id="tick_type_soft">
        <source></source>
        <translation>Doux</translation>
    </message>
    <message id="tick_type_soft_hint">
        <source></source>
        <translation>Grave et feutré</translation>
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
        <translation>La concentration au fil de la journée</translation>
    </message>
    <message id="today">
        <source></source>
        <translation>Aujourd’hui</translation>
    </message>
    <message id="today_sessions_title">
        <source></source>
        <translation>Sessions du jour</translation>
    </message>
    <message id="today_short">
        <source></source>
        <translation>Auj.</translation>
    </message>
    <message id="tomorrow">
        <source></source>
        <translation>Demain</translation>
    </message>
    <message id="tray_paused">
        <source></source>
        <translation>En pause, reste %1</translation>
    </message>
    <message id="tray_show_window">
        <source></source>
        <translation>Afficher la fenêtre</translation>
    </message>
    <message id="tray_time_left" numerus="yes">
        <source></source>
        <translation>
            <numerusform>Encore %n minute, jusqu’à %1</numerusform>
            <numerusform>Encore %n minutes, jusqu’à %1</numerusform>
        </translation>
    </message>
    <message id="undo_button">
        <source></source>
        <translation>Annuler</translation>
    </message>
    <message id="undo_completed_format">
        <source></source>
        <translation>« %1 » est terminée</translation>
    </message>
    <message id="undo_deleted_format">
        <source></source>
        <translation>« %1 » a été supprimé</translation>
    </message>
    <message id="undo_imported_format">
        <source></source>
        <translation>« %1 » a été importé</translation>
    </message>
    <message id="undo_phases_deleted" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n phase a été supprimée</numerusform>
            <numerusform>%n phases ont été supprimées</numerusform>
        </translation>
    </message>
    <message id="undo_planned_format" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n tâche a été planifiée · %1</numerusform>
            <numerusform>%n tâches ont été planifiées · %1</numerusform>
        </translation>
    </message>
    <message id="undo_session_deleted_format">
        <source></source>
        <translation>La session du %1 a été supprimée</translation>
    </message>
    <message id="undo_session_no_task">
        <source></source>
        <translation>La session ne compte plus pour aucune tâche</translation>
    </message>
    <message id="undo_session_task_format">
        <source></source>
        <translation>La session compte maintenant pour « %1 »</translation>
    </message>
    <message id="undo_unscheduled_format">
        <source></source>
        <translation>« %1 » a été retirée de l’agenda</translation>
    </message>
    <message id="unschedule_button">
        <source></source>
        <translation>Retirer</translation>
    </message>
    <message id="unschedule_task">
        <source></source>
        <translation>Retirer de l’agenda</translation>
    </message>
    <message id="update_available">
        <source></source>
        <translation>Une mise à jour de Norvin Focus est disponible.</translation>
    </message>
    <message id="update_available_version">
        <source></source>
        <translation>Norvin Focus %1 est disponible.</translation>
    </message>
    <message id="update_checking">
        <source></source>
        <translation>Recherche de mises à jour…</translation>
    </message>
    <message id="update_explanation">
        <source></source>
        <translation>Le service logiciel de votre ordinateur est interrogé, et seulement quand vous le demandez. Norvin Focus lui-même ne télécharge rien.</translation>
    </message>
    <message id="update_failed">
        <source></source>
        <translation>La recherche de mises à jour a échoué : %1</translation>
    </message>
    <message id="update_installed">
        <source></source>
        <translation>Une mise à jour est en place. Elle servira au prochain démarrage de Norvin Focus.</translation>
    </message>
    <message id="update_no_packagekit">
        <source></source>
        <translation>Le service logiciel PackageKit n’est pas là.</translation>
    </message>
    <message id="update_no_packagekit_remedy">
        <source></source>
        <translation>Installez le paquet packagekit, ou mettez Norvin Focus à jour avec l’outil qui l’a installé.</translation>
    </message>
    <message id="update_none_announced">
        <source></source>
        <translation>Aucune mise à jour n’a été annoncée. Si cela change pendant que Norvin Focus est ouvert, vous le lirez ici.</translation>
    </message>
    <message id="update_not_checked">
        <source></source>
        <translation>Aucune recherche de mise à jour depuis le démarrage.</translation>
    </message>
    <message id="update_open_centre_button">
        <source></source>
        <translation>Ouvrir la logithèque</translation>
    </message>
    <message id="update_portal_missing">
        <source></source>
        <translation>Le portail Flatpak de ce bureau ne répond pas.</translation>
    </message>
    <message id="update_source_build">
        <source></source>
        <translation>Ce Norvin Focus ne vient pas d’un paquet.</translation>
    </message>
    <message id="update_source_build_remedy">
        <source></source>
        <translation>Mettez-le à jour là où vous l’avez obtenu. Installé par un paquet ou un Flatpak, il cherche ses mises à jour ici.</translation>
    </message>
    <message id="update_timed_out">
        <source></source>
        <translation>Le service logiciel de cet ordinateur n’a pas répondu à temps. Réessayez dans quelques minutes.</translation>
    </message>
    <message id="update_unknown_package">
        <source></source>
        <translation>Les sources logicielles de cet ordinateur ne connaissent pas Norvin Focus.</translation>
    </message>
    <message id="update_up_to_date">
        <source></source>
        <translation>Norvin Focus est à jour.</translation>
    </message>
    <message id="update_version">
        <source></source>
        <translation>Norvin Focus %1</translation>
    </message>
    <message id="verdict_blocked">
        <source></source>
        <translation>Correspond à « %1 » sur la liste des sites bloqués. L’onglet est fermé.</translation>
    </message>
    <message id="verdict_blocked_and_whitelisted">
        <source></source>
        <translation>Correspond à « %1 » sur la liste des sites bloqués : l’onglet est fermé. D’ici là, son temps est légitime, car « %2 » est sur la liste blanche.</translation>
    </message>
    <message id="verdict_blocked_word">
        <source></source>
        <translation>Bloqué</translation>
    </message>
    <message id="verdict_browser_blocked">
        <source></source>
        <translation>%1 est lui-même bloqué : il est masqué avant qu’une page ne compte.</translation>
    </message>
    <message id="verdict_browser_not_whitelisted">
        <source></source>
        <translation>%1 n’est pas sur la liste blanche des applications : tout son temps est distrait, quelle que soit la page.</translation>
    </message>
    <message id="verdict_distracted_word">
        <source></source>
        <translation>Distrait</translation>
    </message>
    <message id="verdict_legitimate_word">
        <source></source>
        <translation>Légitime</translation>
    </message>
    <message id="verdict_no_lists">
        <source></source>
        <translation>Les deux listes sont vides : tout site compte comme légitime.</translation>
    </message>
    <message id="verdict_not_blocked">
        <source></source>
        <translation>Rien ne correspond sur la liste des sites bloqués, et il n’y a pas de liste blanche.</translation>
    </message>
    <message id="verdict_not_whitelisted">
        <source></source>
        <translation>Ce navigateur a une liste blanche, et rien n’y correspond.</translation>
    </message>
    <message id="verdict_unreadable">
        <source></source>
        <translation>Aucun site n’est reconnaissable dans ce texte.</translation>
    </message>
    <message id="verdict_whitelisted">
        <source></source>
        <translation>Correspond à « %1 » sur la liste blanche.</translation>
    </message>
    <message id="welcome_again_button">
        <source></source>
        <translation>Le revoir</translation>
    </message>
    <message id="welcome_again_hint">
        <source></source>
        <translation>La langue, ce qui est observé, les listes proposées et une première tâche.</translation>
    </message>
    <message id="welcome_again_label">
        <source></source>
        <translation>Accueil</translation>
    </message>
    <message id="welcome_back_button">
        <source></source>
        <translation>Retour</translation>
    </message>
    <message id="welcome_later_button">
        <source></source>
        <translation>Pas maintenant</translation>
    </message>
    <message id="welcome_leave_button">
        <source></source>
        <translation>Quitter l’accueil</translation>
    </message>
    <message id="welcome_lists_empty_subtitle">
        <source></source>
        <translation>Aucune application installée ne relève clairement du travail ou des loisirs. À vous de remplir les listes de blocage.</translation>
    </message>
    <message id="welcome_lists_empty_title">
        <source></source>
        <translation>Rien à suggérer</translation>
    </message>
    <message id="welcome_lists_subtitle">
        <source></source>
        <translation>D’après ce qui est installé ici. Les applications autorisées comptent comme concentration, celles bloquées sont masquées pendant le travail. Tout peut être changé plus tard.</translation>
    </message>
    <message id="welcome_lists_title">
        <source></source>
        <translation>Ce qui fait partie de votre travail</translation>
    </message>
    <message id="welcome_next_button">
        <source></source>
        <translation>Suivant</translation>
    </message>
    <message id="welcome_pages_allow_button">
        <source></source>
        <translation>Autoriser</translation>
    </message>
    <message id="welcome_pages_missing">
        <source></source>
        <translation>Ce bureau n’a pas de services d’accessibilité. Une extension pour votre navigateur fait de même ; elle est proposée dans « État du suivi ».</translation>
    </message>
    <message id="welcome_pages_off">
        <source></source>
        <translation>Ces services sont désactivés. Les autoriser vaut pour tous les programmes de votre bureau, et peut être annulé dans « État du suivi ».</translation>
    </message>
    <message id="welcome_pages_on">
        <source></source>
        <translation>Ces services sont activés. Les navigateurs que vous listez se distinguent par leurs pages.</translation>
    </message>
    <message id="welcome_pages_subtitle">
        <source></source>
        <translation>Pour distinguer un site d’un autre, Norvin Focus lit la barre d’adresse par les services d’accessibilité de votre bureau, comme le ferait un lecteur d’écran.</translation>
    </message>
    <message id="welcome_pages_title">
        <source></source>
        <translation>Les pages des navigateurs</translation>
    </message>
    <message id="welcome_skip_button">
        <source></source>
        <translation>Passer</translation>
    </message>
    <message id="welcome_start_button">
        <source></source>
        <translation>Se mettre au travail</translation>
    </message>
    <message id="welcome_step">
        <source></source>
        <translation>Étape %1 sur %2</translation>
    </message>
    <message id="welcome_subtitle">
        <source></source>
        <translation>Une chose à la fois, aussi longtemps que vous le décidez. Norvin Focus garde vos tâches, minute votre travail et vous dit honnêtement à quel point vous étiez concentré.</translation>
    </message>
    <message id="welcome_task_palette">
        <source></source>
        <translation>Ctrl+K mène à tout : pages, tâches, projets et actions.</translation>
    </message>
    <message id="welcome_task_placeholder">
        <source></source>
        <translation>La première tâche</translation>
    </message>
    <message id="welcome_task_subtitle">
        <source></source>
        <translation>Une seule tâche suffit pour commencer. Elle attend dans la file si vous préférez d’abord regarder autour de vous.</translation>
    </message>
    <message id="welcome_task_title">
        <source></source>
        <translation>Sur quoi allez-vous travailler ?</translation>
    </message>
    <message id="welcome_title">
        <source></source>
        <translation>Bienvenue dans Norvin Focus</translation>
    </message>
    <message id="welcome_watching_applications">
        <source></source>
        <translation>Quelle application est au premier plan, pour compter chaque seconde comme concentrée ou distraite.</translation>
    </message>
    <message id="welcome_watching_input">
        <source></source>
        <translation>Depuis combien de temps clavier et souris sont immobiles. Jamais ce que vous tapez.</translation>
    </message>
    <message id="welcome_watching_kept">
        <source></source>
        <translation>Tout reste sur cet ordinateur, dans %1. Rien n’est envoyé nulle part.</translation>
    </message>
    <message id="welcome_watching_pages">
        <source></source>
        <translation>Dans les navigateurs que vous listez, le domaine de la page affichée. Jamais le contenu de la page.</translation>
    </message>
    <message id="welcome_watching_subtitle">
        <source></source>
        <translation>Seulement pendant une phase de travail. Pendant les pauses, et quand rien n’est en cours, rien n’est regardé.</translation>
    </message>
    <message id="welcome_watching_title">
        <source></source>
        <translation>Ce qui est observé</translation>
    </message>
    <message id="whitelisted_count" numerus="yes">
        <source></source>
        <translation>
            <numerusform>%n en liste blanche</numerusform>
            <numerusform>%n en liste blanche</numerusform>
        </translation>
    </message>
    <message id="window_closed_running_body">
        <source></source>
        <translation>La fenêtre est fermée, pas le minuteur. Relancez Norvin Focus pour le revoir.</translation>
    </message>
    <message id="window_closed_running_title">
        <source></source>
        <translation>La session continue</translation>
    </message>
    <message id="window_menu">
        <source></source>
        <translation>Menu</translation>
    </message>
</context>
</TS>
